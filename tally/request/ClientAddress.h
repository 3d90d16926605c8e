// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <optional>
#include <string_view>

#include "tally/net/Asio.h"
#include "tally/net/Network.h"

namespace mivo::tally {

/// Whose vote this is. Where `peer` is no proxy that is trusted it is `peer`, whatever the header says. Otherwise the
/// last entry of X-Forwarded-For that is not itself a trusted proxy: each proxy wrote the one before it, and what
/// stands before the first untrusted one are the client's own words. Where an entry is no address, what was reached
/// until then.
asio::ip::address forwardedAddress(std::string_view forwardedFor, const asio::ip::address& peer,
                                   const Networks& trusted);

/// What a rate is counted for: the whole of an IPv4 address (also where it comes mapped into IPv6), of an IPv6 one its
/// first 64 bits, since one household has all the rest.
std::uint64_t rateKey(const asio::ip::address& client);

/// A site may vote as often as so many of its households.
inline constexpr unsigned householdsOfASite = 10;

/// The first 48 bits of an IPv6 address, of which one customer may have all that begin alike; nothing for IPv4.
std::optional<std::uint64_t> siteKey(const asio::ip::address& client);

}  // namespace mivo::tally
