// SPDX-License-Identifier: MIT
#include "cli/terminal/TextWidth.h"

#include <gtest/gtest.h>

#include <ostream>

namespace mivo::cli {
namespace {

struct WidthRow {
  const char* name;
  std::string_view text;
  int expected;
};
void PrintTo(const WidthRow& row, std::ostream* out) { *out << row.name; }
class TextWidth : public testing::TestWithParam<WidthRow> {};

TEST_P(TextWidth, countsColumnsOfATerminal) { EXPECT_EQ(columns(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Rows, TextWidth,
                         testing::Values(WidthRow{"nothing", "", 0}, WidthRow{"latin", "Fasts", 5},
                                         WidthRow{"umlaut", "kürzer", 6}, WidthRow{"japanese", "月曜日", 6},
                                         WidthRow{"fullwidthDigits", "１２", 4}, WidthRow{"hebrew", "שבוע", 4},
                                         WidthRow{"hebrewPoints", "שָׁבוּעַ", 4}, WidthRow{"combiningAccent", "e\u0301", 1},
                                         WidthRow{"directionMark", "\u200F5", 1}, WidthRow{"syllable", "한", 2},
                                         WidthRow{"syllableInLetters", "\u1112\u1161\u11AB", 2},
                                         WidthRow{"blocks", "█▌", 2}, WidthRow{"braille", "⣀⠤", 2},
                                         WidthRow{"picture", "\U0001F34E", 2}, WidthRow{"badBytes", "a\xFF", 2}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(TextWidth, padsToColumnsNotBytes) {
  EXPECT_EQ(padded("月", 4) + "|", "月  |");
  EXPECT_EQ(paddedLeft("é", 3), "  é");
  EXPECT_EQ(padded("longer", 3), "longer");
}

using Lines = std::vector<std::string>;

TEST(TextWidth, wrapsWhereALineMayEnd) {
  EXPECT_EQ(wrapped("fits", 4), Lines{"fits"});
  EXPECT_EQ(wrapped("one two three", 7), (Lines{"one two", "three"}));
  EXPECT_EQ(wrapped("今週は先週より長い", 10), (Lines{"今週は先週", "より長い"}));
  EXPECT_EQ(wrapped("an unbreakableword here", 8), (Lines{"an", "unbreakableword", "here"}));
  EXPECT_EQ(wrapped("", 8), Lines{""});
}

}  // namespace
}  // namespace mivo::cli
