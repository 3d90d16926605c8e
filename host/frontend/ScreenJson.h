// SPDX-License-Identifier: MIT
#pragma once

#include "host/app/Screens.h"
#include "host/json/ReadJson.h"

namespace mivo::host {

// Screens have names of their own, which the pages call them by.
inline void writeJson(JsonWriter& json, Screen screen) { json.string(rawValue(screen)); }

template <>
inline std::optional<Screen> readValue<Screen>(const JSONValue& json, JsonFault& fault) {
  const auto screen = json.text() ? screenFrom(*json.text()) : std::nullopt;
  if (!screen) expectedInJson("the name of a screen", fault);
  return screen;
}

}  // namespace mivo::host
