// SPDX-License-Identifier: MIT
#include "host/text/BadRecord.h"

#include <gtest/gtest.h>
#include <unicode/uchar.h>
#include <unicode/utf.h>

#include <cstdint>
#include <ostream>
#include <string>

#include "host/text/Utf8.h"

namespace mivo::host {
namespace {

TEST(BadRecord, namesOnlyWhatItKnows) {
  EXPECT_EQ(describe({"weights.csv", 14, "weight_kg", "7Z.5", "expected kilograms above 0"}),
            "weights.csv:14: weight_kg: expected kilograms above 0, found \"7Z.5\"");
  EXPECT_EQ(describe({.file = "a.json", .reason = "expected a file"}), "a.json: expected a file");
  EXPECT_EQ(describe({.file = "a.csv", .line = 3, .value = "", .reason = "expected an end"}),
            "a.csv:3: expected an end, found \"\"");
}

struct QuotableRow {
  const char* name;
  std::string_view text, expected;
};
void PrintTo(const QuotableRow& row, std::ostream* out) { *out << row.name; }
class Quotable : public testing::TestWithParam<QuotableRow> {};

TEST_P(Quotable, fitsIntoOneLineOfATerminal) { EXPECT_EQ(quotable(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Rows, Quotable,
                         testing::Values(QuotableRow{"plain", "7Z.5", "7Z.5"}, QuotableRow{"umlaut", "fünf", "fünf"},
                                         QuotableRow{"forty", "1234567890123456789012345678901234567890",
                                                     "1234567890123456789012345678901234567890"},
                                         QuotableRow{"fortyOne", "12345678901234567890123456789012345678901",
                                                     "1234567890123456789012345678901234567890..."},
                                         QuotableRow{"cutBetweenCharacters", "123456789012345678901234567890123456789ü",
                                                     "123456789012345678901234567890123456789..."},
                                         QuotableRow{"lineBreak", "a\nb", "a\\x0Ab"},
                                         QuotableRow{"escapeSequence", "\x1B[2J", "\\x1B[2J"},
                                         QuotableRow{"latin1", "f\xFCnf", "f\\xFCnf"},
                                         QuotableRow{"cutShort", "\xE2\x82", "\\xE2\\x82"},
                                         QuotableRow{"rightToLeftOverride", "a\u202Eb", "a\\xE2\\x80\\xAEb"}),
                         [](const auto& row) { return std::string{row.param.name}; });

// Every character is held against Unicode's own list.
TEST(Quotable, writesOutWhatATerminalWouldNotShow) {
  for (UChar32 character = 0; character < 0x110000; ++character) {
    if (U_IS_SURROGATE(character)) continue;
    std::string text;
    appendCharacter(text, static_cast<std::uint32_t>(character));
    const auto unfit = U_GC_CC_MASK | U_GC_CF_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
    ASSERT_EQ(quotable(text) == text, (U_GET_GC_MASK(character) & unfit) == 0) << std::hex << character;
  }
}

}  // namespace
}  // namespace mivo::host
