// SPDX-License-Identifier: MIT
#pragma once
#include <string>
#include <string_view>

namespace mivo::tally::test {

/// Overwrites the page of a SQLite file that holds the text. Nobody must have the file open. Throws std::runtime_error
/// where the text is not in it.
void damagePageWith(const std::string& file, std::string_view text);

}  // namespace mivo::tally::test
