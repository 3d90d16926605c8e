// SPDX-License-Identifier: MIT
#include "tally/store/StoreAddress.h"

#include <charconv>
#include <stdexcept>

namespace mivo::tally {
namespace {

[[noreturn]] void refuse(const std::string& reason) { throw std::invalid_argument("--store: " + reason); }

std::string percentDecoded(std::string_view text) {
  std::string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      decoded += text[i];
      continue;
    }
    unsigned char byte = 0;
    const auto* digits = text.data() + i + 1;
    if (text.size() - i < 3 || std::from_chars(digits, digits + 2, byte, 16).ptr != digits + 2)
      refuse("a % in the user or password must be followed by two hexadecimal digits");
    decoded += static_cast<char>(byte);
    i += 2;
  }
  return decoded;
}

void readLogin(std::string_view login, RedisAddress& address) {
  const auto colon = login.find(':');
  if (colon == std::string_view::npos) refuse("write USER:PASSWORD@ or :PASSWORD@ before the host");
  address.user = percentDecoded(login.substr(0, colon));
  address.password = percentDecoded(login.substr(colon + 1));
}

int readDatabase(std::string_view text) {
  int database = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), database);
  if (error != std::errc{} || end != text.data() + text.size() || database < 0)
    refuse("the database after the host must be a number");
  return database;
}

bool namesPort(std::string_view host) {
  const auto colon = host.rfind(':');
  return colon != std::string_view::npos && host.find(']', colon) == std::string_view::npos;
}

RedisAddress parseRedis(std::string_view rest, bool isSecure) {
  RedisAddress address{.endpoint = {}, .user = {}, .password = {}, .database = 0, .isSecure = isSecure};
  const auto slash = rest.rfind('/');
  const auto at = rest.rfind('@');
  if (slash != std::string_view::npos && (at == std::string_view::npos || slash > at)) {
    if (slash + 1 < rest.size()) address.database = readDatabase(rest.substr(slash + 1));
    rest = rest.substr(0, slash);
  }
  if (at != std::string_view::npos) {
    readLogin(rest.substr(0, at), address);
    rest = rest.substr(at + 1);
  }
  const auto endpoint = parseEndpoint(namesPort(rest) ? std::string{rest} : std::string{rest} + ":6379");
  if (!endpoint) refuse("the host must be written HOST, HOST:PORT or [IPV6]:PORT");
  address.endpoint = *endpoint;
  return address;
}

}  // namespace

StoreAddress parseStoreAddress(std::string_view text) {
  for (const std::string_view scheme : {"redis://", "rediss://"})
    if (text.starts_with(scheme)) return parseRedis(text.substr(scheme.size()), scheme == "rediss://");
  constexpr std::string_view sqlite = "sqlite:";
  if (!text.starts_with(sqlite)) refuse("expected sqlite:FILE, redis://HOST or rediss://HOST");
  if (text.size() == sqlite.size()) refuse("sqlite: needs a file");
  return SqliteAddress{std::filesystem::path{text.substr(sqlite.size())}};
}

std::string describe(const StoreAddress& address) {
  if (const auto* sqlite = std::get_if<SqliteAddress>(&address)) return "sqlite:" + sqlite->file.string();
  const auto& redis = std::get<RedisAddress>(address);
  return (redis.isSecure ? "rediss://" : "redis://") + describe(redis.endpoint) + '/' + std::to_string(redis.database);
}

}  // namespace mivo::tally
