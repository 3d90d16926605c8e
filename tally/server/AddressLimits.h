// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <unordered_map>

#include "tally/net/Network.h"
#include "tally/server/RateLimiter.h"
#include "tally/server/SeededHash.h"

namespace mivo::tally {

/// What one address may hold and cost, so that no stranger takes what is everyone's. An IPv6 address counts by its
/// first 64 bits; proxies, behind which many clients stand, may do as they like.
class AddressLimits {
 public:
  struct Limits {
    std::size_t connections = 0;       // 0: as many as it likes
    unsigned handshakesPerMinute = 0;  // 0: as many as it likes
    Networks exempt;
  };

  explicit AddressLimits(Limits given) : limits{std::move(given)}, handshakes{limits.handshakesPerMinute} {}

  /// Whether the address may open one more connection, which it then has until it leaves.
  bool admit(const asio::ip::address& address);
  void leave(const asio::ip::address& address);
  /// Whether it may begin a TLS handshake now.
  bool mayGreet(const asio::ip::address& address, RateLimiter::Instant now);

 private:
  Limits limits;
  RateLimiter handshakes;
  std::unordered_map<std::uint64_t, std::size_t, SeededHash> connections;
};

}  // namespace mivo::tally
