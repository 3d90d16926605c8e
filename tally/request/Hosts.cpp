// SPDX-License-Identifier: MIT
#include "tally/request/Hosts.h"

#include <algorithm>

#include "tally/net/Asio.h"
#include "tally/request/AsciiCase.h"

namespace mivo::tally {
namespace {

constexpr Refusal otherName{421, "this server does not answer to that name: see --host"};

std::string_view hostName(std::string_view host) {
  if (!host.starts_with('[')) return host.substr(0, host.rfind(':'));
  const auto end = host.find(']');
  return end == std::string_view::npos ? host : host.substr(1, end - 1);
}

bool isLoopback(const std::string& name) {
  error_code error;
  const auto address = asio::ip::make_address(name, error);
  return error ? equalsIgnoringCase(name, "localhost") : address.is_loopback();
}

bool isSentByAPage(const Request& request) { return !request.origin.empty() || !request.fetchSite.empty(); }

}  // namespace

std::optional<Refusal> faultOfHost(const Request& request, const Hosts& hosts) {
  if (hosts.names.empty() || request.host.empty()) return std::nullopt;  // only HTTP/1.0 has no Host, and no browser
  if (hosts.isForPagesOnly && !isSentByAPage(request)) return std::nullopt;
  const std::string name{hostName(request.host)};
  const bool isOwn = std::ranges::any_of(hosts.names, [&](const auto& own) {
    return equalsIgnoringCase(own, name) || (own == "localhost" && isLoopback(name));
  });
  if (isOwn || (hosts.isCertified && hosts.isCertified(name))) return std::nullopt;
  return otherName;
}

}  // namespace mivo::tally
