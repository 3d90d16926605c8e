// SPDX-License-Identifier: MIT
#include "tally/request/Manners.h"

#include <algorithm>

#include "tally/request/AsciiCase.h"

namespace mivo::tally {
namespace {

constexpr Refusal headVotes{405, "HEAD does not vote: use GET"};
constexpr Refusal prefetchVotes{403, "a prefetch does not vote"};
constexpr Refusal foreignPage{403, "a page of another site must not vote here"};

bool allowsAll(const AllowedOrigins& allowed) { return std::ranges::find(allowed, "*") != allowed.end(); }

bool allows(const AllowedOrigins& allowed, std::string_view origin) {
  const auto isIt = [origin](const auto& each) { return equalsIgnoringCase(each, origin); };
  return std::ranges::any_of(allowed, isIt) || allowsAll(allowed);
}

// Behind a balancer that ends TLS the scheme is not known here, so only host and port are compared.
bool isOwn(std::string_view origin, std::string_view host) {
  const auto scheme = origin.find("://");
  return scheme != std::string_view::npos && equalsIgnoringCase(origin.substr(scheme + 3), host);
}

// "https://app.example/page?x" is of the origin "https://app.example".
std::string_view originOf(std::string_view address) {
  const auto scheme = address.find("://");
  if (scheme == std::string_view::npos) return address;
  return address.substr(0, address.find_first_of("/?#", scheme + 3));
}

bool isForeignSite(std::string_view fetchSite) {
  return !fetchSite.empty() && !equalsIgnoringCase(fetchSite, "none") && !equalsIgnoringCase(fetchSite, "same-origin");
}

}  // namespace

std::optional<Refusal> faultOfVote(const Request& request, const AllowedOrigins& allowed) {
  if (request.method == Method::head) return headVotes;
  if (request.isPrefetch) return prefetchVotes;
  const auto origin = request.origin.empty() ? originOf(request.referer) : request.origin;
  if (!origin.empty() && allows(allowed, origin)) return std::nullopt;
  const bool isForeign = isForeignSite(request.fetchSite) || (!origin.empty() && !isOwn(origin, request.host));
  if (isForeign && !allowsAll(allowed)) return foreignPage;
  return std::nullopt;
}

std::string_view originToAllow(const Request& request, const AllowedOrigins& allowed) {
  if (request.origin.empty() || !allows(allowed, request.origin)) return {};
  return request.origin;
}

}  // namespace mivo::tally
