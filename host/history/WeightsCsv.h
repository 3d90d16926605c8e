// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "adapters/time/TimeZone.h"
#include "host/text/BadRecord.h"
#include "mivo/model/BodyWeightSample.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Reads a table of weights, ascending by date in the answer:
///
///     date,weight_kg
///     2026-03-01T07:05:00+01:00,81.4
///
/// Columns in any order, found by the names that people and programs give them; others are passed over. The unit stands
/// in the header ("weight_kg", "weight (lb)") or in the cell ("284.0 lbs"); else it is `unit`, and without one the
/// table is refused. A cell that is empty, "NA", "--" or "null" means that nobody was weighed. A day alone is its
/// beginning; dates without offset are in `zone`. The first row that is wrong is the answer instead. Thread: any.
tl::expected<std::vector<BodyWeightSample>, BadRecord> readWeightsCsv(std::string_view text, const std::string& file,
                                                                      const adapters::TimeZone& zone,
                                                                      std::optional<WeightUnit> unit,
                                                                      const UUIDGenerator& ids);

}  // namespace mivo::host
