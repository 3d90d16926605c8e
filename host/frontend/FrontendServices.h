// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/app/AppFeature.h"
#include "host/pages/AboutPage.h"
#include "host/place/WeekCalendar.h"
#include "host/tips/Tips.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::host {

/// What the pages stand on: the clients of whoever embeds them.
struct FrontendServices {
  std::shared_ptr<const Dependencies> dependencies;
  Client<HistoryClient> history;
  Client<DataFiles> files = {};
  Client<LinkedHealthClient> health = {};
  std::shared_ptr<const Tips> tips;
  std::shared_ptr<WeekCalendar> calendar;              ///< the one in the dependencies
  TimeRange timeRange = TimeRange::week;               ///< that the statistics begin with
  WeightUnit usualWeightUnit = WeightUnit::kilograms;  ///< in the user's locale
  std::string feedbackAddress = {};                    ///< of mail; none where nobody reads any
  AboutFacts about = {};
  std::vector<Fact> libraries = {};  ///< beside those of every program: `composeAbout`
  std::function<std::optional<std::string>(const ReminderSettings&)> keepReminding = {};
};

}  // namespace mivo::host
