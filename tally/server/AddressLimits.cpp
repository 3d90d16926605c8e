// SPDX-License-Identifier: MIT
#include "tally/server/AddressLimits.h"

#include "tally/request/ClientAddress.h"

namespace mivo::tally {

bool AddressLimits::admit(const asio::ip::address& address) {
  if (limits.connections == 0 || contains(limits.exempt, address)) return true;
  auto& count = connections[rateKey(address)];
  if (count >= limits.connections) return false;
  ++count;
  return true;
}

void AddressLimits::leave(const asio::ip::address& address) {
  const auto found = connections.find(rateKey(address));
  if (found == connections.end() || contains(limits.exempt, address)) return;
  if (--found->second == 0) connections.erase(found);
}

bool AddressLimits::mayGreet(const asio::ip::address& address, RateLimiter::Instant now) {
  return contains(limits.exempt, address) || handshakes.secondsToWait(rateKey(address), now) == 0;
}

}  // namespace mivo::tally
