// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <tl/expected.hpp>

#include "adapters/icu/UserLocale.h"
#include "adapters/time/ZonedCalendar.h"
#include "cli/report/ReportOptions.h"
#include "host/dates/WrittenDate.h"
#include "mivo/model/Date.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/model/TimeRange.h"

namespace mivo::cli {

/// What `ReportOptions` mean.
struct RunSettings {
  TimeRange range;
  Date now;
  std::shared_ptr<const adapters::ZonedCalendar> calendar;
  adapters::UserLocale locale;
  StreakSettings streaks;
  std::optional<WeightUnit> weightUnit;  ///< as it was asked for
  std::optional<host::DateOrder> dateOrder;
  bool asJson = false;

  const adapters::TimeZone& zone() const { return *calendar->zone(); }
};

/// Or a sentence that names the option, what was expected and what was found.
tl::expected<RunSettings, std::string> runSettings(const ReportOptions& options);

}  // namespace mivo::cli
