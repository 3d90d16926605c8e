// SPDX-License-Identifier: MIT
#include "tally/request/ClientAddress.h"

#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

const auto peer = asio::ip::make_address("10.0.0.1");

struct ForwardedRow {
  const char* name;
  const char* header;
  const char* expected;
};
void PrintTo(const ForwardedRow& row, std::ostream* out) { *out << row.name; }

class Forwarded : public testing::TestWithParam<ForwardedRow> {};

TEST_P(Forwarded, isWhatTheNearestBalancerSaw) {
  EXPECT_EQ(forwardedAddress(GetParam().header, peer).to_string(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Forwarded,
                         testing::Values(ForwardedRow{"one", "192.0.2.7", "192.0.2.7"},
                                         ForwardedRow{"clientLies", "1.1.1.1, 192.0.2.7 ", "192.0.2.7"},
                                         ForwardedRow{"withPort", "192.0.2.7:4711", "192.0.2.7"},
                                         ForwardedRow{"ipv6", "2001:db8::7", "2001:db8::7"},
                                         ForwardedRow{"ipv6WithPort", "[2001:db8::7]:4711", "2001:db8::7"},
                                         ForwardedRow{"none", "", "10.0.0.1"},
                                         ForwardedRow{"name", "unknown", "10.0.0.1"},
                                         ForwardedRow{"openBracket", "[2001:db8::7", "10.0.0.1"},
                                         ForwardedRow{"endsWithComma", "192.0.2.7,", "10.0.0.1"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(RateKey, isOneForAHousehold) {
  const auto key = [](const char* address) { return rateKey(asio::ip::make_address(address)); };
  EXPECT_EQ(key("2001:db8:1:2::1"), key("2001:db8:1:2:ffff::9"));
  EXPECT_NE(key("2001:db8:1:2::1"), key("2001:db8:1:3::1"));
  EXPECT_EQ(key("192.0.2.7"), key("::ffff:192.0.2.7"));
  EXPECT_NE(key("192.0.2.7"), key("192.0.2.8"));
}

}  // namespace
}  // namespace mivo::tally
