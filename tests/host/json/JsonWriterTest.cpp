// SPDX-License-Identifier: MIT
#include "host/json/JsonWriter.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

namespace mivo::host {
namespace {

using Layout = JsonWriter::Layout;

TEST(JsonWriter, spreadsWhatIsLongAndKeepsTheRestOnALine) {
  JsonWriter json;
  json.beginObject(Layout::spread);
  json.key("none");
  json.beginArray(Layout::spread);
  json.endArray();
  json.key("fasts");
  json.beginArray(Layout::spread);
  for (const std::int64_t id : {1, 2}) {
    json.beginObject(Layout::line);
    json.key("id");
    json.number(id);
    json.key("zones");
    json.beginArray(Layout::spread);  // inside a line it is one too
    json.null();
    json.boolean(true);
    json.endArray();
    json.endObject();
  }
  json.endArray();
  json.endObject();
  EXPECT_EQ(std::move(json).text(), R"({
  "none": [],
  "fasts": [
    {"id": 1, "zones": [null, true]},
    {"id": 2, "zones": [null, true]}
  ]
}
)");
}

std::string written(double number) {
  JsonWriter json;
  json.number(number);
  return std::move(json).text();
}

TEST(JsonWriter, writesNumbersShortAndNamesWhatIsNotFinite) {
  EXPECT_EQ(written(81.4), "81.4\n");
  EXPECT_EQ(written(5400), "5400\n");
  EXPECT_EQ(written(-0.0), "-0\n");
  EXPECT_EQ(written(1e300), "1e+300\n");
  EXPECT_EQ(written(std::nan("")), "\"nan\"\n");
  EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "\"inf\"\n");
  EXPECT_EQ(written(-std::numeric_limits<double>::infinity()), "\"-inf\"\n");
}

RC_GTEST_PROP(JsonWriter, numbersReadBack, (std::uint64_t bits)) {
  const auto number = std::bit_cast<double>(bits);
  RC_PRE(std::isfinite(number));
  const auto read = nlohmann::json::parse(written(number));
  RC_ASSERT(std::bit_cast<std::uint64_t>(read.get<double>()) == bits || number == 0);
}

RC_GTEST_PROP(JsonWriter, textsReadBack, (const std::vector<std::uint16_t>& units)) {
  std::string text;
  for (const std::uint16_t unit : units) text += static_cast<char>(unit & 0x7F);  // every control character
  JsonWriter json;
  json.string(text + "ü");
  RC_ASSERT(nlohmann::json::parse(std::move(json).text()).get<std::string>() == text + "ü");
}

}  // namespace
}  // namespace mivo::host
