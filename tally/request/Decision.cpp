// SPDX-License-Identifier: MIT
#include "tally/request/Decision.h"

namespace mivo::tally {

Route decide(const Request& request, const AllowedOrigins& allowed) {
  if (request.method == Method::other) return onlyGetAndHead;
  const auto route = routeOf(request.target);
  if (!std::holds_alternative<AddVote>(route)) return route;
  if (const auto fault = faultOfVote(request, allowed)) return *fault;
  return route;
}

}  // namespace mivo::tally
