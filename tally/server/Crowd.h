// SPDX-License-Identifier: MIT
#pragma once
#include <list>
#include <memory>

#include "tally/server/AddressLimits.h"

namespace mivo::tally {

class Connection;
/// Open connections, the one that was silent longest first.
using Connections = std::list<std::shared_ptr<Connection>>;
/// Connections that are in the same phase, the one that has been longest first.
using Line = std::list<Connection*>;

/// What all connections have together.
struct Crowd {
  Connections open;
  Line handshaking;             // a TLS handshake has begun and not ended
  Line sending;                 // answers wait until the client takes them
  std::size_t unsentBytes = 0;  // of those
  AddressLimits addresses;
};

}  // namespace mivo::tally
