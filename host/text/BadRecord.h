// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace mivo::host {

/// What was refused in a file. `line` counts from 1, as editors do, and is 0 where the file as a whole is meant;
/// `column` is the file's own name for the field; `value` is the file's own text, made fit for a sentence by
/// `quotable`; `reason` says what was expected, and `either` of which two, where it has places for them.
struct BadRecord {
  std::string file;
  std::int64_t line = 0;
  std::string column = {};
  std::optional<std::string> value = {};
  std::string reason = {};
  std::optional<std::pair<std::string, std::string>> either = {};
  bool operator==(const BadRecord&) const = default;
};

/// weights.csv:14: weight_kg: expected kilograms above 0, found "7Z.5"
std::string describe(const BadRecord& bad);

/// A file's own text as it can stand in one line of a terminal: at most 40 bytes, cut between characters and then
/// ending in "...", with control characters and bytes that are not UTF-8 written as \xNN.
std::string quotable(std::string_view text);

}  // namespace mivo::host
