// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <string_view>

#include "tally/net/Asio.h"

namespace mivo::tally {

/// Whose vote this is: the last entry of X-Forwarded-For, which the nearest balancer wrote itself (those before it are
/// the client's own words), or `peer` where that is no address.
asio::ip::address forwardedAddress(std::string_view forwardedFor, const asio::ip::address& peer);

/// What a rate is counted for: the whole of an IPv4 address (also where it comes mapped into IPv6), of an IPv6 one its
/// first 64 bits, since one household has all the rest.
std::uint64_t rateKey(const asio::ip::address& client);

}  // namespace mivo::tally
