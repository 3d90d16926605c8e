// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "mivo/statistics/Cards.h"
#include "mivo/statistics/ScreenInput.h"

namespace mivo {

/// The statistics screen: which cards it shows, from top to bottom, and every text on them. Whatever draws it, a window
/// or a report, decides nothing more.
///
/// Pure. Some 50 formatted texts: a few dozen microseconds once the trend sentences are there. Thread: any.
std::vector<Card> composeScreen(const ScreenInput& input, const ScreenFormatters& formatters);

}  // namespace mivo
