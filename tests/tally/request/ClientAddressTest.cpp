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
  EXPECT_EQ(forwardedAddress(GetParam().header, peer, {*parseNetwork("10.0.0.0/8")}).to_string(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Forwarded,
                         testing::Values(ForwardedRow{"one", "192.0.2.7", "192.0.2.7"},
                                         ForwardedRow{"clientLies", "1.1.1.1, 192.0.2.7 ", "192.0.2.7"},
                                         ForwardedRow{"withPort", "192.0.2.7:4711", "192.0.2.7"},
                                         ForwardedRow{"ipv6", "2001:db8::7", "2001:db8::7"},
                                         ForwardedRow{"ipv6WithPort", "[2001:db8::7]:4711", "2001:db8::7"},
                                         ForwardedRow{"twoProxies", "1.1.1.1, 192.0.2.7, 10.9.9.9", "192.0.2.7"},
                                         ForwardedRow{"proxiesOnly", "10.0.0.7, 10.9.9.9", "10.0.0.7"},
                                         ForwardedRow{"wordsBeforeAProxy", "unknown, 10.9.9.9", "10.9.9.9"},
                                         ForwardedRow{"none", "", "10.0.0.1"},
                                         ForwardedRow{"name", "unknown", "10.0.0.1"},
                                         ForwardedRow{"openBracket", "[2001:db8::7", "10.0.0.1"},
                                         ForwardedRow{"endsWithComma", "192.0.2.7,", "10.0.0.1"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(Forwarded, isNotBelievedOfAStranger) {
  const auto stranger = asio::ip::make_address("192.0.2.9");
  EXPECT_EQ(forwardedAddress("198.51.100.7", stranger, privateNetworks()), stranger);
}

TEST(SiteKey, isOfTheFirst48BitsOfAnIPv6Address) {
  const auto key = [](const char* text) { return siteKey(asio::ip::make_address(text)); };
  EXPECT_EQ(key("2001:db8:1:2::3"), 0x2001'0db8'0001U);
  EXPECT_EQ(key("2001:db8:1:ffff:1::"), 0x2001'0db8'0001U);
  EXPECT_EQ(key("192.0.2.1"), std::nullopt);
  EXPECT_EQ(key("::ffff:192.0.2.1"), std::nullopt);
}

TEST(Network, holdsWhatBeginsWithItsBits) {
  const auto holds = [](const char* network, const char* address) {
    return parseNetwork(network).value().contains(asio::ip::make_address(address));
  };
  EXPECT_TRUE(holds("10.0.0.0/8", "10.255.0.1"));
  EXPECT_TRUE(holds("10.0.0.0/8", "::ffff:10.1.2.3"));
  EXPECT_FALSE(holds("10.0.0.0/8", "11.0.0.0"));
  EXPECT_TRUE(holds("10.0.0.7/32", "10.0.0.7"));
  EXPECT_FALSE(holds("10.0.0.7/32", "10.0.0.6"));
  EXPECT_TRUE(holds("2001:db8::7/128", "2001:db8::7"));
  EXPECT_TRUE(holds("172.16.0.0/12", "172.31.255.255"));
  EXPECT_FALSE(holds("172.16.0.0/12", "172.32.0.0"));
  EXPECT_TRUE(holds("192.0.2.7", "192.0.2.7"));
  EXPECT_FALSE(holds("192.0.2.7", "192.0.2.6"));
  EXPECT_TRUE(holds("0.0.0.0/0", "8.8.8.8"));
  EXPECT_FALSE(holds("0.0.0.0/0", "2001:db8::1"));
  EXPECT_TRUE(holds("fc00::/7", "fdff::1"));
  EXPECT_FALSE(holds("fc00::/7", "fe80::1"));
  for (const auto* wrong : {"", "/8", "10.0.0.0/33", "::/129", "10.0.0.0/", "10.0.0.0/x", "10.0.0.0/8/8", "name"})
    EXPECT_EQ(parseNetwork(wrong), std::nullopt) << wrong;
}

TEST(RateKey, isOneForAHousehold) {
  const auto key = [](const char* address) { return rateKey(asio::ip::make_address(address)); };
  EXPECT_EQ(key("2001:db8:1:2::1"), key("2001:db8:1:2:ffff::9"));
  EXPECT_NE(key("2001:db8:1:2::1"), key("2001:db8:1:3::1"));
  EXPECT_EQ(key("192.0.2.7"), key("::ffff:192.0.2.7"));
  EXPECT_NE(key("192.0.2.7"), key("192.0.2.8"));
}

}  // namespace
}  // namespace mivo::tally
