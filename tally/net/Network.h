// SPDX-License-Identifier: MIT
#pragma once
#include <optional>
#include <string_view>
#include <vector>

#include "tally/net/Asio.h"

namespace mivo::tally {

/// The addresses that begin with the same bits. IPv4 addresses also where they come mapped into IPv6.
struct Network {
  asio::ip::address address;
  unsigned prefix = 0;  // bits
  bool contains(const asio::ip::address& other) const;
  bool operator==(const Network&) const = default;
};
using Networks = std::vector<Network>;

/// Reads "10.0.0.0/8", "2001:db8::/32" or a single address; nothing for anything else.
std::optional<Network> parseNetwork(std::string_view text);

bool contains(const Networks& networks, const asio::ip::address& address);

/// This machine, and what no router of the internet leads to.
Networks privateNetworks();

/// An IPv4 address that comes mapped into IPv6, as IPv4; others as they are.
asio::ip::address unmapped(const asio::ip::address& address);

}  // namespace mivo::tally
