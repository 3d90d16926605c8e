// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "mivo/model/Record.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// The words of controls that stand in many places, or in no page. They stay the same while the app runs.
struct ControlWords {
  std::string fasting, statistics, settings;  ///< the tabs
  std::string close, back;
  std::string less, more;  ///< beside a number
  std::string chart;       ///< over what a chart offers, where nothing in it is selected
  std::string copyValue, showAsTable;
  std::string cannotOpen, tryAgain;                     ///< where the app cannot start
  std::string restoreNewest, beginAnew, damagedIsKept;  ///< where that is because the history is damaged
  bool operator==(const ControlWords&) const = default;
};

template <RecordOf<ControlWords> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [fasting, statistics, settings, close, back, less, more, chart, copyValue, showAsTable, cannotOpen, tryAgain,
         restoreNewest, beginAnew, damagedIsKept] = record;
  visit("fasting", fasting);
  visit("statistics", statistics);
  visit("settings", settings);
  visit("close", close);
  visit("back", back);
  visit("less", less);
  visit("more", more);
  visit("chart", chart);
  visit("copyValue", copyValue);
  visit("showAsTable", showAsTable);
  visit("cannotOpen", cannotOpen);
  visit("tryAgain", tryAgain);
  visit("restoreNewest", restoreNewest);
  visit("beginAnew", beginAnew);
  visit("damagedIsKept", damagedIsKept);
}

ControlWords controlWords(const TextLookup& texts);

}  // namespace mivo::host
