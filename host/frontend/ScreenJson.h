// SPDX-License-Identifier: MIT
#pragma once

#include "host/app/Screens.h"
#include "host/json/ReadJson.h"

namespace mivo::host {

inline void writeJson(JsonWriter& json, Screen screen) { json.string(rawValue(screen)); }

/// Screens have names of their own, which the pages call them by.
template <>
inline JsonRead<Screen> readJson<Screen>(const JSONValue& json) {
  const auto screen = json.text() ? screenFrom(*json.text()) : std::nullopt;
  if (!screen) return expectedInJson("the name of a screen");
  return *screen;
}

}  // namespace mivo::host
