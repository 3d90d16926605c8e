// SPDX-License-Identifier: MIT
#include "tally/net/Network.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace mivo::tally {
namespace {

template <class Bytes>
bool beginAlike(const Bytes& one, const Bytes& other, unsigned bits) {
  const auto whole = bits / 8;
  if (!std::equal(one.begin(), one.begin() + whole, other.begin())) return false;
  const unsigned rest = bits % 8;
  return rest == 0 || (one[whole] ^ other[whole]) >> (8 - rest) == 0;
}

std::optional<unsigned> parsePrefix(std::string_view text, unsigned longest) {
  unsigned prefix = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), prefix);
  if (error != std::errc{} || end != text.data() + text.size() || prefix > longest) return std::nullopt;
  return prefix;
}

}  // namespace

asio::ip::address unmapped(const asio::ip::address& address) {
  if (address.is_v4() || !address.to_v6().is_v4_mapped()) return address;
  return asio::ip::make_address_v4(asio::ip::v4_mapped, address.to_v6());
}

bool Network::contains(const asio::ip::address& other) const {
  const auto plain = unmapped(other);
  if (plain.is_v4() != address.is_v4()) return false;
  if (plain.is_v4()) return beginAlike(address.to_v4().to_bytes(), plain.to_v4().to_bytes(), prefix);
  return beginAlike(address.to_v6().to_bytes(), plain.to_v6().to_bytes(), prefix);
}

std::optional<Network> parseNetwork(std::string_view text) {
  const auto slash = text.find('/');
  error_code error;
  const auto address = unmapped(asio::ip::make_address(std::string{text.substr(0, slash)}, error));
  if (error) return std::nullopt;
  const unsigned longest = address.is_v4() ? 32 : 128;
  const auto prefix = slash == std::string_view::npos ? longest : parsePrefix(text.substr(slash + 1), longest);
  if (!prefix) return std::nullopt;
  return Network{address, *prefix};
}

bool contains(const Networks& networks, const asio::ip::address& address) {
  return std::ranges::any_of(networks, [&](const auto& network) { return network.contains(address); });
}

Networks privateNetworks() {
  Networks networks;
  for (const auto* text : {"127.0.0.0/8", "10.0.0.0/8", "172.16.0.0/12", "192.168.0.0/16", "169.254.0.0/16", "::1",
                           "fc00::/7", "fe80::/10"})
    networks.push_back(*parseNetwork(text));
  return networks;
}

}  // namespace mivo::tally
