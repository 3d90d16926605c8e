// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "host/reminders/ReminderSettings.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::app {

/// Starts `mivo-reminder`, which lies beside this program, now and at every login, where anything is to be told; one
/// that runs already gives way to it. Where nothing is, it is started at no login again, and one that runs ends by
/// itself. `database` is a file, or empty for the user's own. A sentence for the user where this fails.
std::optional<std::string> keepReminding(const host::ReminderSettings& settings, const std::string& database,
                                         const TextLookup& texts);

}  // namespace mivo::app
