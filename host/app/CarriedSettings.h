// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "host/history/Setting.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// Where settings are kept: the app's own, and those that it shares with its widgets.
struct SettingScopes {
  const UserDefaults& app;
  const UserDefaults& group;
};

/// The settings that a snapshot carries from one machine to the next, as far as they were ever chosen: the goal weight,
/// units, goals, streaks, cards, language and appearance; not where the window stood.
std::vector<Setting> carriedSettings(const SettingScopes& scopes);

/// Chooses those of some settings that are known and of the right kind, and says how many.
std::size_t choose(std::span<const Setting> settings, const SettingScopes& scopes);

}  // namespace mivo::host
