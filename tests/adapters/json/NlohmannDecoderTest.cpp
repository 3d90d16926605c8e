// SPDX-License-Identifier: MIT
#include "adapters/json/NlohmannDecoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace mivo::adapters {
namespace {

using Array = JSONValue::Array;
using Object = JSONValue::Object;
using testing::HasSubstr;

JSONValue text(const char* content) { return {std::string{content}}; }

TEST(NlohmannDecoder, decodesEveryKindInItsPlace) {
  const JSONValue expected{Object{
      {"list", {Array{{}, {true}, {std::int64_t{-3}}, {Array{}}, {Object{}}}}},
      {"words", {Object{{"en", text("fast")}, {"de", text("Fasten \U0001F600")}}}},
      {"", {0.5}},
  }};
  EXPECT_EQ(NlohmannDecoder{}.decoded(
                R"( {"list": [null, true, -3, [], {}], "words": {"en": "fast", "de": "Fasten 😀"}, "": 5e-1} )"),
            expected);
  EXPECT_EQ(NlohmannDecoder{}.decoded("7"), JSONValue{std::int64_t{7}});
}

struct NumberRow {
  const char *name, *json;
  std::optional<std::int64_t> whole;
};
void PrintTo(const NumberRow& row, std::ostream* out) { *out << row.name; }
class WholeNumber : public testing::TestWithParam<NumberRow> {};

TEST_P(WholeNumber, isReadWhereItFits) {
  EXPECT_EQ(NlohmannDecoder{}.decoded(GetParam().json).whole(), GetParam().whole);
}

INSTANTIATE_TEST_SUITE_P(Rows, WholeNumber,
                         testing::Values(NumberRow{"largest", "9223372036854775807", INT64_MAX},
                                         NumberRow{"smallest", "-9223372036854775808", INT64_MIN},
                                         NumberRow{"smallestWithAPoint", "-9223372036854775808.0", INT64_MIN},
                                         NumberRow{"largestWithAPoint", "9223372036854775808.0", std::nullopt},
                                         NumberRow{"oneTooLarge", "9223372036854775808", std::nullopt},
                                         NumberRow{"unsignedLimit", "18446744073709551615", std::nullopt},
                                         NumberRow{"huge", "99999999999999999999999", std::nullopt},
                                         NumberRow{"withAPoint", "7.0", 7}, NumberRow{"withAnExponent", "1e3", 1000},
                                         NumberRow{"fraction", "7.5", std::nullopt},
                                         NumberRow{"text", "\"7\"", std::nullopt},
                                         NumberRow{"null", "null", std::nullopt}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(JSONValue, theLastOfEqualKeysCounts) {
  const JSONValue value = NlohmannDecoder{}.decoded(R"({"a": 1, "b": null, "a": 2})");
  ASSERT_NE(value.member("a"), nullptr);
  EXPECT_EQ(value.member("a")->whole(), 2);
  EXPECT_EQ(value.member("b"), nullptr) << "null is as good as missing";
  EXPECT_EQ(value.member("c"), nullptr);
  EXPECT_EQ(JSONValue{}.member("a"), nullptr);
}

TEST(NlohmannDecoder, refusesWhatIsNotOneText) {
  for (const char* json : {"", "{", "[1,]", "<html></html>", "{} {}", "NaN", "{'a': 1}", "\"\xff\"", "1e999"})
    EXPECT_THROW(NlohmannDecoder{}.decoded(json), DecodingError) << json;
  try {
    NlohmannDecoder{}.decoded("{\n\"value\" 7}");
    FAIL();
  } catch (const DecodingError& error) {
    EXPECT_THAT(error.what(), HasSubstr("line 2"));
  }
}

TEST(NlohmannDecoder, refusesWhatIsNestedTooDeeply) {
  const auto nested = [](std::size_t levels) { return std::string(levels, '[') + std::string(levels, ']'); };
  EXPECT_NO_THROW(NlohmannDecoder{}.decoded(nested(64)));
  EXPECT_THROW(NlohmannDecoder{}.decoded(nested(65)), DecodingError);
  EXPECT_THROW(NlohmannDecoder{}.decoded(std::string(1'000'000, '[')), DecodingError);
}

}  // namespace
}  // namespace mivo::adapters
