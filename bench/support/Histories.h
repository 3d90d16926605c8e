// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "mivo/model/BodyWeightSample.h"
#include "mivo/model/Fasts.h"

namespace bench {

/// The orders in which histories come: as exported oldest first, newest first, or mixed by merging several sources.
enum class Order { sorted, reversed, shuffled };

/// The instant at which every history ends: 2026-03-01T12:00:00Z.
inline constexpr mivo::Date now = mivo::dateSince1970(1772366400);

/// That many finished fasts up to `now`, the same ones on every call. Up to 10,000 are one a day; more share the same
/// 30 years, so that longer histories are denser and not older. About a third miss their goal, a few overlap, and now
/// and then there is a pause of two days.
std::vector<mivo::FinishedFastingDataEntry> fasts(std::int64_t count, Order order = Order::sorted);

/// The same history as the records that a host hands over.
std::vector<mivo::FastingDataEntry> fastRecords(std::int64_t count, Order order = Order::sorted);

/// That many weighings up to `now`, ascending, one a day up to 10,000 and denser above: a slow loss with plateaus.
std::vector<mivo::BodyWeightSample> weights(std::int64_t count);

}  // namespace bench
