// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>
#include <string>
#include <string_view>
#include <variant>

#include "tally/net/Endpoint.h"

namespace mivo::tally {

struct SqliteAddress {
  std::filesystem::path file;
  bool operator==(const SqliteAddress&) const = default;
};

struct RedisAddress {
  Endpoint endpoint;
  std::string user;      // empty: Redis' default user
  std::string password;  // empty: no login
  int database = 0;
  bool isSecure = false;  // TLS; the certificate is checked against the system's authorities, or SSL_CERT_FILE's
  bool operator==(const RedisAddress&) const = default;
};

using StoreAddress = std::variant<SqliteAddress, RedisAddress>;

/// Reads "sqlite:FILE" or "redis[s]://[[USER]:PASSWORD@]HOST[:6379][/DATABASE]"; user and password may be
/// percent-encoded. Errors: std::invalid_argument with one sentence, which never shows the password.
StoreAddress parseStoreAddress(std::string_view text);

/// The address as a log may show it: without user and password.
std::string describe(const StoreAddress& address);

}  // namespace mivo::tally
