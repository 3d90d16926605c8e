// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/data/ExportedPart.h"
#include "mivo/statistics/Cards.h"

namespace mivo::host {

/// What of the statistics stands on a picture or on paper: their figures, without what asks to be tapped. Cards of
/// weights are left out unless they are to be shown, and the range where nothing below it is left.
std::vector<Card> printedCards(std::vector<Card> cards, PrintedWeights weights);

}  // namespace mivo::host
