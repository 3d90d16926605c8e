// SPDX-License-Identifier: MIT
#include "tally/net/Endpoint.h"

#include <charconv>

namespace mivo::tally {
namespace {

bool isPort(std::string_view text) {
  unsigned port = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
  return error == std::errc{} && end == text.data() + text.size() && port <= 65535;
}

}  // namespace

std::optional<Endpoint> parseEndpoint(std::string_view text) {
  const auto colon = text.rfind(':');
  if (colon == std::string_view::npos || !isPort(text.substr(colon + 1))) return std::nullopt;
  auto host = text.substr(0, colon);
  if (host.starts_with('[') && host.ends_with(']')) {
    host = host.substr(1, host.size() - 2);
  } else if (host.find(':') != std::string_view::npos) {
    return std::nullopt;
  }
  if (host.empty() || host.find_first_of("[]") != std::string_view::npos) return std::nullopt;
  return Endpoint{std::string{host}, std::string{text.substr(colon + 1)}};
}

std::string describe(const Endpoint& endpoint) {
  const bool isIPv6 = endpoint.host.find(':') != std::string::npos;
  return (isIPv6 ? '[' + endpoint.host + ']' : endpoint.host) + ':' + endpoint.port;
}

}  // namespace mivo::tally
