// SPDX-License-Identifier: MIT
#include "host/pages/OpenScreens.h"

namespace mivo::host {

OpenScreens composeOpenScreens(const AppFeature::State& state) {
  OpenScreens open;
  for (std::optional<Screen> at = openScreen(state); at; at = screenBelow(*at)) {
    std::string& place = kindOf(*at) == ScreenKind::tab    ? open.tab
                         : kindOf(*at) == ScreenKind::page ? open.page
                                                           : open.sheet;
    place = rawValue(*at);  // of pages over each other, the outermost
  }
  return open;
}

}  // namespace mivo::host
