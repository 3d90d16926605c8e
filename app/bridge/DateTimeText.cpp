// SPDX-License-Identifier: MIT
#include "DateTimeText.h"

#include <limits>

#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

Date presentDate() { return dependency(&Dependencies::date)->now(); }

std::string formatted(Date date, const char* skeleton) {
  return dependency(&Dependencies::dateFormatter)->string(date, skeleton).value_or("");
}

bool isOfPresentYear(Date date) { return formatted(date, "y") == formatted(presentDate(), "y"); }

}  // namespace

QString dateTimeText(Date date) {
  const auto& texts = *dependency(&Dependencies::texts);
  if (daysFromToday(date) == 0) return qString(filledIn(texts.text("Today, {1}"), {clockText(date)}));
  if (daysFromToday(date) == -1) return qString(filledIn(texts.text("Yesterday, {1}"), {clockText(date)}));
  return fixedDateTimeText(date);
}

QString fixedDateTimeText(Date date) {
  return qString(formatted(date, isOfPresentYear(date) ? "EEEdMMMjm" : "EEEdMMMyjm"));
}

std::string dayText(Date date) { return formatted(date, isOfPresentYear(date) ? "EEEdMMM" : "EEEdMMMy"); }

std::string clockText(Date date) { return formatted(date, "jm"); }

std::int64_t daysFromToday(Date date) {
  const auto days = dependency(&Dependencies::calendar)->calendarDatesBetween(presentDate(), date);
  return days ? *days - 1 : std::numeric_limits<std::int64_t>::max();
}

}  // namespace mivo::app
