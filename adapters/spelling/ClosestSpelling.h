// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace mivo::adapters {

/// The place of the candidate that is spelled most like a word, of several the first; none where nothing comes close
/// enough to be meant: within a third of the word's letters, and two at most. A letter too many, one that is missing
/// and a wrong one count once each, and so do two neighbours that were swapped. Bytes are compared: fold case before.
///
///     closestSpelling("lsit", std::array<std::string, 2>{"start", "list"});  // 1
///
/// Cost: the product of the lengths, a candidate. Thread: any.
std::optional<std::size_t> closestSpelling(std::string_view word, std::span<const std::string> candidates);

}  // namespace mivo::adapters
