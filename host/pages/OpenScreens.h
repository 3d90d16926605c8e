// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/app/AppFeature.h"
#include "mivo/model/Record.h"

namespace mivo::host {

/// What is open, each by the raw value of its `Screen`.
struct OpenScreens {
  std::string tab;
  std::string page;   ///< pushed over the tab's; none where that is seen. A list of badges is part of their page
  std::string sheet;  ///< over all; none where nothing is
  bool operator==(const OpenScreens&) const = default;
};

template <RecordOf<OpenScreens> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [tab, page, sheet] = record;
  visit("tab", tab);
  visit("page", page);
  visit("sheet", sheet);
}

OpenScreens composeOpenScreens(const AppFeature::State& state);

}  // namespace mivo::host
