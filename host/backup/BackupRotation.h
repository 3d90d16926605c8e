// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <vector>

#include "mivo/model/Date.h"

namespace mivo::host {

/// The day that a backup counts for, in UTC: one that does not change with where the user is.
inline std::chrono::sys_days backupDay(Date date) { return std::chrono::floor<std::chrono::days>(date); }

/// Of backups of these dates those that stay, the newest first: the newest one of each of the last 7 days, of the last
/// 4 weeks (from Monday) and of the last 12 months of which there are any, in UTC. Days without a backup are not
/// counted and the clock is not asked, so that neither a long pause nor a clock that was set wrong costs one.
std::vector<Date> keptBackups(std::vector<Date> dates);

}  // namespace mivo::host
