// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "adapters/time/TimeZone.h"
#include "host/dates/WrittenDate.h"
#include "mivo/platform/Formatters.h"

namespace mivo::host {

/// What a person says about files that do not say it themselves.
struct ImportSettings {
  std::shared_ptr<const adapters::TimeZone> zone;  ///< of dates without an offset
  std::optional<WeightUnit> weightUnit = {};       ///< of weights without a unit
  std::optional<DateOrder> dateOrder = {};         ///< of dates that can be read in two ways
};

}  // namespace mivo::host
