// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// A setting of the user's, as a snapshot carries it. A number without a fraction comes back as a whole one.
struct Setting {
  std::string key;
  UserDefaults::Value value;
  bool operator==(const Setting&) const = default;
};

}  // namespace mivo::host
