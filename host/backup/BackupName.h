// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "mivo/model/Date.h"

namespace mivo::host {

/// "mivo-2026-03-01T120000Z.json": the name of a backup's file says when it was made, to the second and in UTC, so that
/// names sort by time, and copying a file does not change its date. Without colons, which some file systems refuse.
std::string backupName(Date date);

/// When a backup of that name was made; nothing for a name that `backupName` does not give.
std::optional<Date> backupDate(std::string_view name);

/// "2026-03-01T120000Z": what tells one backup from the others.
std::string backupKey(Date date);

}  // namespace mivo::host
