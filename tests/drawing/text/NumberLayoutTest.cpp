// SPDX-License-Identifier: MIT
#include "drawing/text/NumberLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace mivo::drawing {
namespace {

using testing::ElementsAre;
using testing::Field;

// A byte is a point wide, but "1" half of one: a narrow digit in a cell of one point.
double measured(std::string_view text) {
  double width = 0;
  for (const char byte : text) width += byte == '1' ? 0.5 : 1;
  return width;
}

CharacterKind kindOf(UChar32 character) {
  const auto category = U_GET_GC_MASK(character);
  if (u_isUWhiteSpace(character)) return CharacterKind::blank;
  if (category & (U_GC_L_MASK | U_GC_M_MASK)) return CharacterKind::letter;
  if (category & U_GC_ND_MASK) return CharacterKind::digit;
  return category & U_GC_P_MASK ? CharacterKind::punctuation : CharacterKind::other;
}

std::vector<Character> charactersOf(std::string_view text) {
  std::vector<Character> characters;
  const auto all = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  for (std::int32_t at = 0; at < all.length(); at = all.moveIndex32(at, 1)) {
    const UChar32 character = all.char32At(at);
    std::string bytes;
    icu::UnicodeString{character}.toUTF8String(bytes);
    characters.push_back({bytes, kindOf(character), std::max(u_charDigitValue(character), 0)});
  }
  return characters;
}

const NumberFace face{measured, measured, charactersOf};
double measuredUnit(std::string_view text) { return static_cast<double>(text.size()) / 2; }

NumberLayout laidOut(std::string_view text, bool hasEvenDigits = false) {
  return layOut(text, {.number = face, .unit = measuredUnit, .unitSize = 100, .hasEvenDigits = hasEvenDigits});
}

struct RunsRow {
  const char* name;
  std::string text;
  std::vector<std::string> runs;  // units in brackets
};
void PrintTo(const RunsRow& row, std::ostream* out) { *out << row.name; }

class Runs : public testing::TestWithParam<RunsRow> {};

TEST_P(Runs, areDigitsAndLetters) {
  std::vector<std::string> found;
  for (const NumberRun& run : laidOut(GetParam().text).runs)
    found.push_back(run.isUnit ? "[" + run.text + "]" : run.text);
  EXPECT_EQ(found, GetParam().runs);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Runs,
    testing::Values(RunsRow{"nothing", "", {}}, RunsRow{"aCount", "1,250", {"1,250"}},
                    RunsRow{"joinedUnits", "16h 34m", {"16", "[h]", "34", "[m]"}},
                    RunsRow{"unitAfterANarrowBlank", "72.4\u202Fkg", {"72.4", "[kg]"}},
                    RunsRow{"abbreviationKeepsItsStop", "16 Std., 38 Min.", {"16", "[Std.,]", "38", "[Min.]"}},
                    RunsRow{"signStandsWithItsNumber", "-2.6 kg", {"-2.6", "[kg]"}},
                    RunsRow{"arabic", "١٦ س", {"١٦", "[س]"}}, RunsRow{"markIsPartOfItsLetter", "3 क्ष", {"3", "[क्ष]"}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(NumberLayout, leavesGapsByTheSizeOfTheUnits) {
  const NumberLayout layout = laidOut("26h 2 kg");
  // 26, a gap of 8, "h" of 0.5, a gap of 22, 2, a gap of 26, "kg" of 1
  EXPECT_THAT(layout.runs, ElementsAre(Field(&NumberRun::x, 0), Field(&NumberRun::x, 10), Field(&NumberRun::x, 32.5),
                                       Field(&NumberRun::x, 59.5)));
  EXPECT_EQ(layout.width, 60.5);
}

TEST(NumberLayout, keepsItsWidthWhileEvenDigitsRun) {
  EXPECT_EQ(laidOut("11h").width, 9.5);
  EXPECT_EQ(laidOut("11h", true).width, laidOut("27h", true).width);
}

TEST(EvenDigits, centreEachDigitInTheCellOfTheWidest) {
  EXPECT_EQ(evenDigits("1:27", face), (EvenDigits{{{"1", 0.25}, {":", 1}, {"2", 2}, {"7", 3}}, 4}));
  EXPECT_EQ(evenDigits("ab", face), (EvenDigits{{{"ab", 0}}, 2})) << "letters may join";
}

TEST(EvenDigits, standInACellWithoutTheLetterSpacing) {
  const auto spaced = [](std::string_view text) { return static_cast<double>(text.size()) / 2; };
  EXPECT_EQ(evenDigits("42", {spaced, measured, charactersOf}), (EvenDigits{{{"4", 0.25}, {"2", 1.25}}, 2}));
}

TEST(EvenDigits, takeTheCellOfTheDigitsOfTheText) {
  const auto script = [](std::string_view text) { return text == "\u0669" ? 5.0 : text == "9" ? 7.0 : 1.0; };
  EXPECT_EQ(evenDigits("\u0663", {measured, script, charactersOf}).width, 5)
      << "an Arabic three stands in the cell of an Arabic nine";
  EXPECT_EQ(evenDigits("3", {measured, script, charactersOf}).width, 7);
}

TEST(EvenDigits, findTheDigitsOfEveryScript) {
  for (UChar32 zero = 0; zero < 0x110000; ++zero) {
    if (!u_isdigit(zero) || u_charDigitValue(zero) != 0) continue;
    std::string digits, nine, asked;
    for (UChar32 digit = 0; digit < 10; ++digit) icu::UnicodeString{zero + digit}.toUTF8String(digits);
    icu::UnicodeString{zero + 9}.toUTF8String(nine);
    const auto note = [&asked](std::string_view digit) { return asked += digit, 1.0; };
    evenDigits(nine, {measured, note, charactersOf});
    EXPECT_EQ(asked, digits) << std::hex << zero;
  }
}

}  // namespace
}  // namespace mivo::drawing
