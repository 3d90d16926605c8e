// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <tl/expected.hpp>

#include "host/fasting/HistoryChange.h"
#include "host/fasting/Refusal.h"
#include "mivo/platform/Formatters.h"

namespace mivo::host {

// What a person can do to a history, by whichever screen or command: each answers with the change that does it, which
// is empty where nothing is to be done, or with what stands against it. None of them does anything yet.
//
//     const auto change = stopping(history.fasts, now, now);
//     if (!change) return refusalText(change.error(), texts);
//     database.apply(*change);
//
// `fasts` are by start and `weights` by date. `now` is what a record may not lie after. Thread: any.

using Outcome = tl::expected<HistoryChange, Refusal>;

/// Nothing where it is not, or no longer, there.
const FastRecord* fastWithID(std::span<const FastRecord> fasts, UUID id);
const BodyWeightSample* weightWithID(std::span<const BodyWeightSample> weights, UUID id);

/// Starts a fast, or adds one that has ended, unless one stands there that is equal but for its id: whoever adds twice
/// means one.
Outcome addingFast(std::span<const FastRecord> fasts, FastRecord fast, Date now);

/// Ends the fast that runs. One that begins after `now`, because the clock was set back, cannot be stopped. One that
/// was begun and ended on the spot within a minute was a mistake: it is removed. Whoever chooses a time chooses a whole
/// minute, so where the start or the end is one, the fast is meant and stays.
Outcome stopping(std::span<const FastRecord> fasts, Date end, Date now);

/// Makes `after` of the fast with its id. A fault that the fast had before is left in peace.
Outcome changingFast(std::span<const FastRecord> fasts, FastRecord after, Date now);

/// The last whole minute at or before a date.
Date startOfMinute(Date date);

/// Seconds from a date to the next minute: at most 60, never 0.
double untilNextMinute(Date date);

/// `chosen`, or `old` where both lie in the same minute: whoever chooses minutes does not mean to change seconds.
Date keepingSeconds(Date old, Date chosen);

/// Gives the running fast another start, as `keepingSeconds` takes it, or another goal.
Outcome changingStart(std::span<const FastRecord> fasts, Date start, Date now);
Outcome changingGoal(std::span<const FastRecord> fasts, std::int64_t goalSeconds, Date now);

Outcome removingFast(std::span<const FastRecord> fasts, UUID id);

/// Adds a weight, unless it stands there already: of the same minute, and the same as it is shown in `unit`. Whoever
/// saves twice means one weight.
Outcome addingWeight(std::span<const BodyWeightSample> weights, const BodyWeightSample& sample, WeightUnit unit,
                     const MassFormatter& masses, Date now);

/// Makes `after` of the weight with its id.
Outcome changingWeight(std::span<const BodyWeightSample> weights, const BodyWeightSample& after, Date now);

Outcome removingWeight(std::span<const BodyWeightSample> weights, UUID id);

}  // namespace mivo::host
