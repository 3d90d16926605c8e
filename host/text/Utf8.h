// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace mivo::host {

/// The character that begins at `next`, which is moved past it; negative for bytes that are not UTF-8.
std::int32_t takeCharacter(std::string_view text, std::size_t& next);

/// Whether all of a text is UTF-8.
bool isUtf8(std::string_view text);

}  // namespace mivo::host
