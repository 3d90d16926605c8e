// SPDX-License-Identifier: MIT
#include "host/versions/Versions.h"

#include <SQLiteCpp/Database.h>
#include <unicode/uversion.h>

#include <rapidjson/rapidjson.h>
#include <array>
#include <boost/version.hpp>
#include <nlohmann/json.hpp>

#include "adapters/zoneinfo/TimeZoneNames.h"

namespace mivo::host {
namespace {

std::string icuVersion() {
  UVersionInfo version;
  u_getVersion(version);
  std::array<char, U_MAX_VERSION_STRING_LENGTH> text{};
  u_versionToString(version, text.data());
  return text.data();
}

std::string numbered(int major, int minor, int patch) {
  return std::to_string(major) + '.' + std::to_string(minor) + '.' + std::to_string(patch);
}

}  // namespace

std::vector<Version> versionsInUse() {
  const std::string zones = adapters::timeZoneDataVersion();
  return {{"time-zone data", zones.empty() ? "unknown" : zones},
          {"ICU", icuVersion()},
          {"SQLite", SQLite::getLibVersion()},
          {"Boost", numbered(BOOST_VERSION / 100'000, BOOST_VERSION / 100 % 1000, BOOST_VERSION % 100)},
          {"nlohmann-json",
           numbered(NLOHMANN_JSON_VERSION_MAJOR, NLOHMANN_JSON_VERSION_MINOR, NLOHMANN_JSON_VERSION_PATCH)},
          {"RapidJSON", RAPIDJSON_VERSION_STRING}};
}

std::string versionText(const std::string& program, const std::vector<Version>& details) {
  std::string text = program;
  for (const auto& [name, number] : details) text.append("\n  ").append(name).append(1, ' ').append(number);
  return text;
}

}  // namespace mivo::host
