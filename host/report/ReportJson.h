// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "host/report/Report.h"

namespace mivo::host {

/// {"now", "timeRange", "stats": all fields of the container, "trends": the rows in zone order, "screen": the cards}.
std::string reportJson(const Report& report, std::span<const ZoneTrendDisplay> trends, std::span<const Card> cards);

}  // namespace mivo::host
