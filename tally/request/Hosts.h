// SPDX-License-Identifier: MIT
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tally/request/Answer.h"
#include "tally/request/Request.h"

namespace mivo::tally {

/// The names that this server answers to. A page may have its own name lead to this server's address (and it is then of
/// the same origin for a browser): it still sends that name as `Host`.
struct Hosts {
  /// Names and addresses without a port. "localhost" stands for every loopback address. None: any name will do.
  std::vector<std::string> names;
  /// Whether a certificate has the name.
  std::function<bool(const std::string&)> isCertified = {};
  /// What else leads here is not known, so only what a browser sends is checked.
  bool isForPagesOnly = false;
};

/// Why this request must not change a counter, or nothing where it may.
std::optional<Refusal> faultOfHost(const Request& request, const Hosts& hosts);

}  // namespace mivo::tally
