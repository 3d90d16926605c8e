// SPDX-License-Identifier: MIT
#include "tally/server/Versions.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <hiredis/hiredis.h>
#include <openssl/crypto.h>
#include <sqlite3.h>

#include <CLI/Version.hpp>
#include <boost/version.hpp>
#include <nlohmann/json.hpp>
#include <sstream>

namespace mivo::tally {

std::string versionText(bool withLibraries) {
  std::ostringstream out;
  out << "mivo-tally " MIVO_VERSION "\n";
  if (!withLibraries) return out.str();
  out << "  Boost " << BOOST_VERSION / 100'000 << '.' << BOOST_VERSION / 100 % 1000 << '.' << BOOST_VERSION % 100
      << '\n'
      << "  CLI11 " CLI11_VERSION "\n"
      << "  hiredis " << HIREDIS_MAJOR << '.' << HIREDIS_MINOR << '.' << HIREDIS_PATCH << '\n'
      << "  nlohmann-json " << NLOHMANN_JSON_VERSION_MAJOR << '.' << NLOHMANN_JSON_VERSION_MINOR << '.'
      << NLOHMANN_JSON_VERSION_PATCH << '\n'
      << "  OpenSSL " << OpenSSL_version(OPENSSL_VERSION_STRING) << '\n'
      << "  SQLite " << sqlite3_libversion() << '\n'
      << "  SQLiteCpp " SQLITECPP_VERSION "\n";
  return out.str();
}

}  // namespace mivo::tally
