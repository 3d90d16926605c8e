// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <tl/expected.hpp>

#include "adapters/time/TimeZone.h"
#include "mivo/platform/JSONValue.h"

namespace mivo::web {

/// A zone as `zones.mjs` finds it:
///
///     {"name": "Europe/Berlin", "firstOffset": 3208, "transitions": [[-2422054408, 3600], ...], "lastYear": 2130}
///
/// transitions  seconds since 1970 of each change of the clocks, ascending, and the offset after it in seconds east of
///              UTC. See `adapters::Transitions` for `lastYear`.
/// An error is a sentence that names the field, behind `path`.
tl::expected<std::shared_ptr<const adapters::TimeZone>, std::string> readTimeZone(const JSONValue& zone,
                                                                                  const std::string& path);

}  // namespace mivo::web
