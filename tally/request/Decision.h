// SPDX-License-Identifier: MIT
#pragma once
#include "tally/request/Hosts.h"
#include "tally/request/Manners.h"
#include "tally/request/Route.h"

namespace mivo::tally {

/// From where a vote may come.
struct VotePolicy {
  AllowedOrigins allowedOrigins;
  Hosts hosts;
};

/// What to do about a request, before any rate or counter is looked at: its route, or the Refusal that it earned. An
/// AddVote comes out only for a request that may change a counter.
Route decide(const Request& request, const VotePolicy& policy);

}  // namespace mivo::tally
