// SPDX-License-Identifier: MIT
#include "mivo/model/DecimalNumber.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <locale>
#include <ostream>
#include <random>
#include <string>
#include <string_view>

namespace mivo {
namespace {

using Limits = std::numeric_limits<double>;

/// A program that follows its user's language, for as long as this lives: in C and in C++.
class ProcessLocale {
 public:
  explicit ProcessLocale(const char* name) {
    ::setenv("LOCPATH", TEST_LOCALES, 1);
    std::locale::global(std::locale{name});
  }
  ~ProcessLocale() { std::locale::global(std::locale::classic()); }
  ProcessLocale(const ProcessLocale&) = delete;
  ProcessLocale& operator=(const ProcessLocale&) = delete;
};

constexpr const char* withDecimalComma = "de_DE.UTF-8";

struct DecimalRow {
  const char* name;
  std::string text;
  std::optional<double> number;
  std::string_view left = {};
};
void PrintTo(const DecimalRow& row, std::ostream* out) { *out << row.name; }

class DecimalNumber : public testing::TestWithParam<DecimalRow> {};

TEST_P(DecimalNumber, isReadAlikeInEveryLocale) {
  const auto& [name, text, expected, left] = GetParam();
  for (const char* language : {"C", withDecimalComma}) {
    const ProcessLocale locale{language};
    std::string_view rest = text;
    const auto number = takeDecimalNumber(rest);
    EXPECT_EQ(number, expected) << language;
    EXPECT_EQ(number && std::signbit(*number), expected && std::signbit(*expected)) << language;
    EXPECT_EQ(rest, expected ? left : text) << language;
    EXPECT_EQ(readDecimalNumber(text), left.empty() ? expected : std::nullopt) << language;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecimalNumber,
    testing::Values(
        DecimalRow{"whole", "81", 81.0}, DecimalRow{"point", "81.4", 81.4}, DecimalRow{"comma", "81,4", 81.0, ",4"},
        DecimalRow{"unit", "81.40 kg", 81.4, " kg"}, DecimalRow{"negative", "-0.25", -0.25},
        DecimalRow{"zero", "0.000", 0.0}, DecimalRow{"negativeZero", "-0", -0.0},
        DecimalRow{"zeroOfAnyPower", "0e999", 0.0}, DecimalRow{"leadingZeros", "000000000000000000000081.4", 81.4},
        DecimalRow{"nothingBefore", ".5", 0.5}, DecimalRow{"nothingBehind", "5.", 5.0},
        DecimalRow{"twoPoints", "1.5.2", 1.5, ".2"}, DecimalRow{"power", "1.5e3", 1500.0},
        DecimalRow{"negativePower", "15E-1", 1.5}, DecimalRow{"positivePower", "15e+1", 150.0},
        DecimalRow{"noPower", "81e", 81.0, "e"}, DecimalRow{"noPowerBehindSign", "81e+kg", 81.0, "e+kg"},
        DecimalRow{"hexadecimal", "0x10", 0.0, "x10"}, DecimalRow{"empty", "", {}}, DecimalRow{"word", "kg", {}},
        DecimalRow{"onlyMinus", "-", {}}, DecimalRow{"onlyPoint", "-.", {}}, DecimalRow{"onlyPower", "e5", {}},
        DecimalRow{"plus", "+5", {}}, DecimalRow{"twoSigns", "--5", {}}, DecimalRow{"blank", " 5", {}},
        DecimalRow{"infinity", "inf", {}}, DecimalRow{"notANumber", "nan", {}},
        // Numbers between two doubles, and the first and last that are read by one operation.
        DecimalRow{"exactPower", "1e22", 1e22}, DecimalRow{"inexactPower", "1e23", 9.999999999999999e22},
        DecimalRow{"largestExact", "9007199254740992", 9007199254740992.0},
        DecimalRow{"halfwayToEvenBelow", "9007199254740993", 9007199254740992.0},
        DecimalRow{"halfwayToEvenAbove", "9007199254740995", 9007199254740996.0},
        DecimalRow{"justAboveHalfway", "9007199254740993." + std::string(60, '0') + "1", 9007199254740994.0},
        DecimalRow{"roundedOnce", "0.1234567890123456789e-5", 0.1234567890123456789e-5},
        DecimalRow{"largest", "1.7976931348623157e308", Limits::max()},
        DecimalRow{"belowHalfwayToInfinity", "179769313486231580793e288", Limits::max()},
        DecimalRow{"tooLarge", "1.7976931348623159e308", {}}, DecimalRow{"farTooLarge", "-1e99999999999999999999", {}},
        DecimalRow{"smallestNormal", "2.2250738585072014e-308", Limits::min()},
        DecimalRow{"largestSubnormal", "2.225073858507201e-308", 2.225073858507201e-308},
        DecimalRow{"smallest", "5e-324", Limits::denorm_min()},
        DecimalRow{"aboveHalfOfSmallest", "2.4703282292062328e-324", Limits::denorm_min()},
        DecimalRow{"belowHalfOfSmallest", "2.4703282292062327e-324", {}},
        DecimalRow{"farTooSmall", "1e-99999999999999999999", {}},
        DecimalRow{"longButOrdinary", "0." + std::string(400, '0') + "15e401", 1.5}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(DecimalNumbers, theLocaleOfTheTestHasADecimalComma) {
  const ProcessLocale locale{withDecimalComma};
  EXPECT_EQ(std::strtod("1,5", nullptr), 1.5);
}

TEST(DecimalNumbers, readBackWhatIsWritten) {
  const ProcessLocale locale{withDecimalComma};
  std::mt19937_64 random{20260301};
  std::array<char, 1200> text;
  for (int turn = 0; turn < 20000; ++turn) {
    // Every other one is of the size that weights, hours and seconds have.
    const std::uint64_t drawn = random();
    const double number = turn % 2 ? std::bit_cast<double>(drawn) : static_cast<double>(drawn >> 11) / (1ull << 32);
    if (!std::isfinite(number)) continue;
    const auto bits = std::bit_cast<std::uint64_t>(number);
    const auto readBack = [&](auto... format) {
      const std::string_view written{text.data(),
                                     std::to_chars(text.data(), text.data() + text.size(), number, format...).ptr};
      EXPECT_EQ(std::bit_cast<std::uint64_t>(readDecimalNumber(written).value_or(0)), bits) << written;
    };
    readBack();
    readBack(std::chars_format::fixed);
    readBack(std::chars_format::scientific, 30);
  }
}

}  // namespace
}  // namespace mivo
