// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace mivo::adapters {

/// Where the system keeps its time-zone database: $TZDIR, or /usr/share/zoneinfo.
std::filesystem::path timeZoneDirectory();

/// The release of that database, "2026f"; empty where it does not say.
std::string timeZoneDataVersion();

/// Whether the database has a zone of this name: "Europe/Berlin", "UTC". Paths and rules ("CET-1CEST") are no names;
/// neither are the copies under "posix/" and those under "right/", which count leap seconds.
bool isTimeZoneName(std::string_view name);

/// Every name of the database, sorted; empty where the system has none. Walks the directory: milliseconds.
std::vector<std::string> timeZoneNames();

/// unknown time zone "Europe/Berln": did you mean Europe/Berlin?
std::string unknownTimeZone(std::string_view name);

/// The name of the zone that this process runs in: $TZ where it is set (empty: UTC), else what /etc/localtime points
/// to, else the text of /etc/timezone, else UTC. An error where $TZ is set to something else than a zone's name.
tl::expected<std::string, std::string> systemTimeZoneName();

}  // namespace mivo::adapters
