// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <tl/expected.hpp>

#include "adapters/time/TimeZone.h"

namespace mivo::adapters {

/// A time zone of the system's database: "Europe/Berlin". An error says what was expected. Reads a file the first time,
/// and takes about 0.1 ms. Thread: any.
tl::expected<std::shared_ptr<const TimeZone>, std::string> loadTimeZone(const std::string& name);

}  // namespace mivo::adapters
