// SPDX-License-Identifier: MIT
#include "tally/request/ClientAddress.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace mivo::tally {
namespace {

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Some balancers add the port: "192.0.2.7:4711", "[2001:db8::7]:4711".
std::string_view withoutPort(std::string_view entry) {
  if (entry.starts_with('[')) {
    const auto end = entry.find(']');
    return end == std::string_view::npos ? entry : entry.substr(1, end - 1);
  }
  return std::ranges::count(entry, ':') == 1 ? entry.substr(0, entry.find(':')) : entry;
}

}  // namespace

asio::ip::address forwardedAddress(std::string_view forwardedFor, const asio::ip::address& peer) {
  const auto comma = forwardedFor.rfind(',');
  const auto last = comma == std::string_view::npos ? forwardedFor : forwardedFor.substr(comma + 1);
  error_code error;
  const auto address = asio::ip::make_address(std::string{withoutPort(trimmed(last))}, error);
  return error ? peer : address;
}

std::uint64_t rateKey(const asio::ip::address& client) {
  if (client.is_v4()) return client.to_v4().to_uint();
  const auto v6 = client.to_v6();
  if (v6.is_v4_mapped()) return asio::ip::make_address_v4(asio::ip::v4_mapped, v6).to_uint();
  const auto bytes = v6.to_bytes();
  return std::accumulate(bytes.begin(), bytes.begin() + 8, std::uint64_t{0},
                         [](std::uint64_t key, std::uint8_t byte) { return key << 8 | byte; });
}

}  // namespace mivo::tally
