// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "host/history/History.h"

namespace mivo::host {

/// Fasts and weights as tables by RFC 4180, a record a line, which read back to the last bit, whatever the locale:
///
///     start,end,goal_hours,note                             date,weight_kg
///     2026-03-01T19:00:00Z,2026-03-02T11:00:00Z,16,"a, b"   2026-03-01T07:05:00Z,81.4
///
/// The end of a fast that is still running is empty.
std::string writeFastsCsv(std::span<const FastRecord> fasts);
std::string writeWeightsCsv(std::span<const BodyWeightSample> weights);

}  // namespace mivo::host
