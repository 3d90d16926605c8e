// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "adapters/time/TimeZone.h"
#include "host/history/History.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// What a table says of fasts; nothing else of a history.
struct FastTable {
  std::vector<FastRecord> fasts;
  std::optional<KeptOddity> endsBeforeStart;
};

/// Reads a table of fasts:
///
///     start,end,goal_hours,note
///     2026-03-01T20:00:00+01:00,2026-03-02T12:00:00+01:00,16,slept well
///     2026-03-02T20:15,,16,
///
/// Columns in any order, found by the names that people and programs give them; others are passed over. An empty end is
/// the running fast, of which there may be one; an empty or missing goal is 16 hours. Dates without offset are in
/// `zone`. A fast that ends before it starts is kept. The first row that is wrong is the answer instead. `file` names
/// the file in sentences. Thread: any.
tl::expected<FastTable, BadRecord> readFastsCsv(std::string_view text, const std::string& file,
                                                const adapters::TimeZone& zone, const UUIDGenerator& ids);

}  // namespace mivo::host
