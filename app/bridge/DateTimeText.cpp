// SPDX-License-Identifier: MIT
#include "DateTimeText.h"

#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

QString dateTimeText(Date date) {
  const auto& texts = *dependency(&Dependencies::texts);
  const auto& dates = *dependency(&Dependencies::dateFormatter);
  const auto days =
      dependency(&Dependencies::calendar)->calendarDatesBetween(date, dependency(&Dependencies::date)->now());
  const std::string clock = dates.string(date, "jm").value_or("");
  if (days == 1) return qString(filledIn(texts.text("Today, {1}"), {clock}));
  if (days == 2) return qString(filledIn(texts.text("Yesterday, {1}"), {clock}));
  return qString(dates.string(date, "EEEdMMMjm").value_or(""));
}

}  // namespace mivo::app
