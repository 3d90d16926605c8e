// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/statistics/Cards.h"
#include "mivo/statistics/ScreenInput.h"

namespace mivo {

// The texts of each card, without asking whether it is shown.

CardContent tipTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent startTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent configureTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent summaryTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent overlappingFastsTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent donationTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent roadmapTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent healthDataTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent addWeightTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent goalWeightTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent badgesTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent timeRangeTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent fastingChartTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent eatingChartTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent weightChartTexts(const ScreenInput& input, const ScreenFormatters& formatters);
CardContent weightFastingChartTexts(const ScreenInput& input, const ScreenFormatters& formatters);
TrendCard trendTexts(LegacyFastingZone zone, const AverageThisLastTimeRange& averages, const ScreenInput& input,
                     const ScreenFormatters& formatters);

/// "4–16h", "72h+": when a fast is in a zone; nothing for fasting and eating as a whole.
std::string zoneHours(LegacyFastingZone zone, const DurationFormatter& hour, const NumberFormatter& numbers);

}  // namespace mivo
