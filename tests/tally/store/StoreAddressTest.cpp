// SPDX-License-Identifier: MIT
#include "tally/store/StoreAddress.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace mivo::tally {
namespace {

struct AddressRow {
  const char* name;
  const char* text;
  StoreAddress expected;
  const char* shown;
};
void PrintTo(const AddressRow& row, std::ostream* out) { *out << row.name; }

class Addresses : public testing::TestWithParam<AddressRow> {};

TEST_P(Addresses, areReadAndShownWithoutSecrets) {
  const auto address = parseStoreAddress(GetParam().text);
  EXPECT_TRUE(address == GetParam().expected);
  EXPECT_EQ(describe(address), GetParam().shown);
}

RedisAddress redis(const char* host, const char* port, int database = 0) {
  return {.endpoint = {host, port}, .user = {}, .password = {}, .database = database, .isSecure = false};
}

RedisAddress withLogin(RedisAddress address, const char* user, const char* password) {
  address.user = user;
  address.password = password;
  return address;
}

RedisAddress secure(RedisAddress address) {
  address.isSecure = true;
  return address;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Addresses,
    testing::Values(
        AddressRow{"file", "sqlite:a/b.sqlite", SqliteAddress{"a/b.sqlite"}, "sqlite:a/b.sqlite"},
        AddressRow{"host", "redis://r", redis("r", "6379"), "redis://r:6379/0"},
        AddressRow{"port", "redis://r:1", redis("r", "1"), "redis://r:1/0"},
        AddressRow{"database", "redis://r:1/2", redis("r", "1", 2), "redis://r:1/2"},
        AddressRow{"slashOnly", "redis://r/", redis("r", "6379"), "redis://r:6379/0"},
        AddressRow{"ipv6", "redis://[::1]/3", redis("::1", "6379", 3), "redis://[::1]:6379/3"},
        AddressRow{"password", "redis://:p@r", withLogin(redis("r", "6379"), "", "p"), "redis://r:6379/0"},
        AddressRow{"login", "redis://u:p%40%2f@r:7/1", withLogin(redis("r", "7", 1), "u", "p@/"), "redis://r:7/1"},
        AddressRow{"oddPassword", "redis://:a/b@c@r", withLogin(redis("r", "6379"), "", "a/b@c"), "redis://r:6379/0"},
        AddressRow{"tls", "rediss://r", secure(redis("r", "6379")), "rediss://r:6379/0"}),
    [](const auto& row) { return std::string{row.param.name}; });

struct RefusedRow {
  const char* name;
  const char* text;
  const char* reason;
};
void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.name; }

class RefusedAddresses : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedAddresses, sayWhatWasExpected) {
  try {
    static_cast<void>(parseStoreAddress(GetParam().text));
    FAIL() << "taken";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), GetParam().reason);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RefusedAddresses,
    testing::Values(
        RefusedRow{"empty", "", "--store: expected sqlite:FILE, redis://HOST or rediss://HOST"},
        RefusedRow{"otherScheme", "mysql://h", "--store: expected sqlite:FILE, redis://HOST or rediss://HOST"},
        RefusedRow{"noFile", "sqlite:", "--store: sqlite: needs a file"},
        RefusedRow{"noHost", "redis://", "--store: the host must be written HOST, HOST:PORT or [IPV6]:PORT"},
        RefusedRow{"badPort", "redis://h:x", "--store: the host must be written HOST, HOST:PORT or [IPV6]:PORT"},
        RefusedRow{"badDatabase", "redis://h/x", "--store: the database after the host must be a number"},
        RefusedRow{"userAlone", "redis://u@h", "--store: write USER:PASSWORD@ or :PASSWORD@ before the host"},
        RefusedRow{"badPercent", "redis://:a%4@h",
                   "--store: a % in the user or password must be followed by two hexadecimal digits"}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::tally
