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
#include "host/report/Report.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::cli {

/// What `ReportOptions` mean.
struct RunSettings {
  host::ReportSettings report;
  std::shared_ptr<const adapters::ZonedCalendar> calendar;  ///< that of the report
  adapters::UserLocale locale;
  std::optional<WeightUnit> weightUnit;  ///< as it was asked for
  std::optional<host::DateOrder> dateOrder;
  bool asJson = false;

  const adapters::TimeZone& zone() const { return *calendar->zone(); }
};

/// Or a sentence that names the option, what was expected and what was found.
tl::expected<RunSettings, std::string> runSettings(const ReportOptions& options);

/// The clients of one run, in its locale.
std::shared_ptr<const Dependencies> runDependencies(const RunSettings& settings);

}  // namespace mivo::cli
