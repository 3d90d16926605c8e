// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/TimeRange.h"

namespace mivo {

/// What one bar of a scroll chart stands for.
enum class ChartTimeUnit { day, week, month };

/// The bars of a range: days in a week, weeks in a month, months in a year.
constexpr ChartTimeUnit chartTimeUnit(TimeRange range) { return static_cast<ChartTimeUnit>(range); }

}  // namespace mivo
