// SPDX-License-Identifier: MIT
#include "tally/request/Manners.h"

#include <algorithm>

namespace mivo::tally {
namespace {

constexpr Refusal headVotes{405, "HEAD does not vote: use GET"};
constexpr Refusal prefetchVotes{403, "a prefetch does not vote"};
constexpr Refusal foreignPage{403, "a page of another site must not vote here"};

bool allowsAll(const AllowedOrigins& allowed) { return std::ranges::find(allowed, "*") != allowed.end(); }

bool allows(const AllowedOrigins& allowed, std::string_view origin) {
  return std::ranges::find(allowed, origin) != allowed.end() || allowsAll(allowed);
}

// Behind a balancer that ends TLS the scheme is not known here, so only host and port are compared.
bool isOwn(std::string_view origin, std::string_view host) {
  const auto scheme = origin.find("://");
  return scheme != std::string_view::npos && origin.substr(scheme + 3) == host;
}

}  // namespace

std::optional<Refusal> faultOfVote(const Request& request, const AllowedOrigins& allowed) {
  if (request.method == Method::head) return headVotes;
  if (request.isPrefetch) return prefetchVotes;
  if (!request.origin.empty()) {
    if (isOwn(request.origin, request.host) || allows(allowed, request.origin)) return std::nullopt;
    return foreignPage;
  }
  if (request.fetchSite == "cross-site" && !allowsAll(allowed)) return foreignPage;
  return std::nullopt;
}

std::string_view originToAllow(const Request& request, const AllowedOrigins& allowed) {
  if (request.origin.empty() || !allows(allowed, request.origin)) return {};
  return request.origin;
}

}  // namespace mivo::tally
