// SPDX-License-Identifier: MIT
#include "tally/request/ClientAddress.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "tally/request/Trimmed.h"

namespace mivo::tally {
namespace {

// Some balancers add the port: "192.0.2.7:4711", "[2001:db8::7]:4711".
std::string_view withoutPort(std::string_view entry) {
  if (entry.starts_with('[')) {
    const auto end = entry.find(']');
    return end == std::string_view::npos ? entry : entry.substr(1, end - 1);
  }
  return std::ranges::count(entry, ':') == 1 ? entry.substr(0, entry.find(':')) : entry;
}

}  // namespace

asio::ip::address forwardedAddress(std::string_view forwardedFor, const asio::ip::address& peer,
                                   const Networks& trusted) {
  auto client = peer;
  while (contains(trusted, client) && !forwardedFor.empty()) {
    const auto comma = forwardedFor.rfind(',');
    const auto entry = comma == std::string_view::npos ? forwardedFor : forwardedFor.substr(comma + 1);
    forwardedFor = comma == std::string_view::npos ? std::string_view{} : forwardedFor.substr(0, comma);
    error_code error;
    const auto address = asio::ip::make_address(std::string{withoutPort(trimmed(entry))}, error);
    if (error) break;
    client = address;
  }
  return client;
}

std::uint64_t rateKey(const asio::ip::address& client) {
  const auto plain = unmapped(client);
  if (plain.is_v4()) return plain.to_v4().to_uint();
  const auto bytes = plain.to_v6().to_bytes();
  return std::accumulate(bytes.begin(), bytes.begin() + 8, std::uint64_t{0},
                         [](std::uint64_t key, std::uint8_t byte) { return key << 8 | byte; });
}

std::optional<std::uint64_t> siteKey(const asio::ip::address& client) {
  if (unmapped(client).is_v4()) return std::nullopt;
  return rateKey(client) >> 16U;
}

}  // namespace mivo::tally
