// SPDX-License-Identifier: MIT
#include "tally/request/Decision.h"

namespace mivo::tally {

Route decide(const Request& request, const VotePolicy& policy) {
  if (request.method == Method::other) return onlyGetAndHead;
  const auto route = routeOf(request.target);
  if (!std::holds_alternative<AddVote>(route)) return route;
  if (const auto fault = faultOfVote(request, policy.allowedOrigins)) return *fault;
  if (const auto fault = faultOfHost(request, policy.hosts)) return *fault;
  return route;
}

}  // namespace mivo::tally
