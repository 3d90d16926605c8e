// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mivo::cli {

/// The columns that a text takes on a terminal: two for East Asian wide characters, none for combining ones, accents
/// and invisible marks.
int columns(std::string_view text);

/// The text and blanks up to a width; as it is where it is that wide already.
std::string padded(std::string_view text, int width);

/// Blanks and the text, up to a width.
std::string paddedLeft(std::string_view text, int width);

/// Lines of at most `width` columns, broken where the Unicode line-breaking rules allow it; a word that is wider has a
/// line of its own.
std::vector<std::string> wrapped(std::string_view text, int width);

}  // namespace mivo::cli
