// SPDX-License-Identifier: MIT
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace mivo::tally {

/// A host (a name, or an address without brackets) and a port.
struct Endpoint {
  std::string host;
  std::string port;
  bool operator==(const Endpoint&) const = default;
};

/// Reads "HOST:PORT" or "[IPV6]:PORT"; nothing where the host is empty or the port is not 0 to 65535.
///
///     parseEndpoint("[::1]:8787");  // {"::1", "8787"}
std::optional<Endpoint> parseEndpoint(std::string_view text);

/// The text that parseEndpoint reads back.
std::string describe(const Endpoint& endpoint);

}  // namespace mivo::tally
