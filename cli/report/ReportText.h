// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "cli/terminal/Paint.h"
#include "host/report/Report.h"
#include "mivo/statistics/ScreenInput.h"

namespace mivo::cli {

/// The cards as text for a terminal of 80 columns, in their order. Left out is what only an app can do: tips,
/// donations, roadmap, access to health data, typing in a weight.
std::string reportText(const host::Report& report, std::span<const Card> cards, WeightUnit weightUnit,
                       const ScreenFormatters& formatters, const Paint& paint);

}  // namespace mivo::cli
