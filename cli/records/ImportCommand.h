// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "cli/records/RecordRun.h"

namespace mivo::cli {

/// Adds the past fasts that lines of standard input say, as an import adds what a file holds: one change, or only told
/// of where the run is dry. Refused where no line has one.
std::string addLines(const RecordRun& run, std::int64_t goalSeconds);

}  // namespace mivo::cli
