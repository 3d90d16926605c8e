// SPDX-License-Identifier: MIT
#include "adapters/icu/Calendars.h"

#include <unicode/strenum.h>

#include <algorithm>
#include <utility>

#include "adapters/icu/IcuCalendar.h"
#include "adapters/icu/IcuDates.h"

namespace mivo::adapters {
namespace {

std::vector<std::string> readIdentifiers() {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::StringEnumeration> known{
      icu::Calendar::getKeywordValuesForLocale("calendar", icu::Locale::getRoot(), false, status)};
  std::vector<std::string> identifiers;
  while (U_SUCCESS(status))
    if (const char* identifier = known->next(nullptr, status))
      identifiers.emplace_back(identifier);
    else
      break;
  std::ranges::sort(identifiers);
  return identifiers;
}

std::string unknownCalendar(std::string_view identifier) {
  std::string text = "unknown calendar \"" + std::string{identifier} + "\": expected one of";
  for (const char* separator = " "; const std::string& known : calendarIdentifiers())
    text += std::exchange(separator, ", ") + known;
  return text;
}

}  // namespace

const std::vector<std::string>& calendarIdentifiers() {
  static const std::vector<std::string> identifiers = readIdentifiers();
  return identifiers;
}

tl::expected<std::shared_ptr<const ZonedCalendar>, std::string> makeCalendar(std::string_view identifier,
                                                                             std::shared_ptr<const TimeZone> zone,
                                                                             int firstWeekday) {
  if (firstWeekday < 1 || firstWeekday > 7)
    return tl::unexpected{"first weekday " + std::to_string(firstWeekday) + ": expected 1 (Sunday) to 7 (Saturday)"};
  if (identifier == gregorianIdentifier) return ZonedCalendar::gregorian(std::move(zone), firstWeekday);

  if (!std::ranges::binary_search(calendarIdentifiers(), identifier))
    return tl::unexpected{unknownCalendar(identifier)};
  auto calendar = openCalendar(identifier, "und");
  if (!calendar) return tl::unexpected{unknownCalendar(identifier)};
  auto dates = std::make_shared<const IcuDates>(std::string{identifier}, std::move(calendar));
  return std::make_shared<const ZonedCalendar>(std::move(zone), std::move(dates), firstWeekday);
}

}  // namespace mivo::adapters
