// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "mivo/model/ChartTimeUnit.h"
#include "mivo/platform/Formatters.h"

namespace mivo {

/// The frame of one bar, in points: as many as fit the unit (7 days, 5 weeks, 8 months) side by side with a gap of one
/// point, but never below 35 or above 50. 35 while the chart has no width yet, or one that is not a number.
double barWidth(double chartWidth, ChartTimeUnit unit);

/// The height of the area that a bar of value 1 fills, in points; what is left of the chart holds popup and labels.
double barAreaHeight(double chartHeight);

/// The top edge of a bar's popup, in points from a line 14 below the baseline; negative is up. A popup that would rise
/// above the bar area is put into its bar.
double popupYOffset(double value, double chartHeight);

/// "16h 59m", and from 100 hours on "104h"; empty where the formatter has no text.
std::string popupLabel(double seconds, const DurationFormatter& hourMin, const DurationFormatter& hour);

}  // namespace mivo
