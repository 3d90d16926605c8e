// SPDX-License-Identifier: MIT
#include "mivo/pages/DateTimeText.h"

#include <limits>

namespace mivo {
namespace {

std::string formatted(Date date, const char* skeleton, const PageClients& clients) {
  return clients.dates.string(date, skeleton).value_or("");
}

bool isOfPresentYear(Date date, const PageClients& clients) {
  return formatted(date, "y", clients) == formatted(clients.now, "y", clients);
}

}  // namespace

std::string dateTimeText(Date date, const PageClients& clients) {
  const auto& texts = clients.texts;
  const std::int64_t days = daysFromToday(date, clients);
  if (days == 0) return filledIn(texts.text("Today, {1}"), {clockText(date, clients)});
  if (days == -1) return filledIn(texts.text("Yesterday, {1}"), {clockText(date, clients)});
  return fixedDateTimeText(date, clients);
}

std::string fixedDateTimeText(Date date, const PageClients& clients) {
  return formatted(date, isOfPresentYear(date, clients) ? "EEEdMMMjm" : "EEEdMMMyjm", clients);
}

std::string dayText(Date date, const PageClients& clients) {
  return formatted(date, isOfPresentYear(date, clients) ? "EEEdMMM" : "EEEdMMMy", clients);
}

std::string overlapText(Date start, const PageClients& clients) {
  return filledIn(clients.texts.text("Overlaps the fast of {1}"), {dayText(start, clients)});
}

std::string clockText(Date date, const PageClients& clients) { return formatted(date, "jm", clients); }

std::int64_t daysFromToday(Date date, const PageClients& clients) {
  const auto days = clients.calendar.calendarDatesBetween(clients.now, date);
  return days ? *days - 1 : std::numeric_limits<std::int64_t>::max();
}

}  // namespace mivo
