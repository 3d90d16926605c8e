// SPDX-License-Identifier: MIT
#include "cli/options/OptionValues.h"

#include <array>
#include <charconv>

#include "host/dates/SpokenDate.h"
#include "host/place/TypedDates.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::cli {

Read<bool> readFormat(std::string_view text) {
  constexpr std::array<Choice<bool>, 2> formats{{{"text", false}, {"json", true}}};
  return readChoice<bool>("--format", "expected text or json", formats, text);
}

Read<std::optional<host::DateOrder>> readDateOrder(std::string_view text) {
  using Order = std::optional<host::DateOrder>;
  constexpr std::array<Choice<Order>, 3> orders{
      {{"", std::nullopt}, {"day-first", host::DateOrder::dayFirst}, {"month-first", host::DateOrder::monthFirst}}};
  return readChoice<Order>("--date-order", "expected day-first or month-first", orders, text);
}

Read<std::optional<WeightUnit>> readWeightUnit(std::string_view text) {
  const auto unit = weightUnitNamed(text);
  if (!unit && !text.empty()) return wrong("--weight-unit", "expected kg, lb or st", text);
  return unit;
}

std::string_view answeringOption(host::ImportFault::Asks asks) {
  switch (asks) {
    case host::ImportFault::Asks::nothing:
      return "";
    case host::ImportFault::Asks::dateOrder:
      return "--date-order day-first or month-first says it";
    case host::ImportFault::Asks::weightUnit:
      return "--weight-unit kg, lb or st says it";
  }
  return "";
}

Read<Date> readTypedDate(std::string_view option, std::string_view text, const adapters::UserLocale& locale,
                         const adapters::TimeZone& zone, Date now, std::optional<Date> after) {
  const auto date = host::readTypedDate(text, locale, zone, now, after);
  if (date) return *date;
  const auto& readings = date.error().readings;
  if (!readings)
    return wrong(option, "expected a date and time, as in 2026-03-01 20:00, 20:00, \"yesterday 8 pm\" or \"2h ago\"",
                 text);
  return wrong(option,
               "expected " + host::typedDate(readings->first, zone) + " or " + host::typedDate(readings->second, zone) +
                   ", since the clocks show this twice",
               text);
}

Read<std::int64_t> readNumber(std::string_view option, std::string_view expected, std::string_view text,
                              std::int64_t low, std::int64_t high) {
  std::int64_t value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc{} || read.ptr != text.data() + text.size() || value < low || value > high)
    return wrong(option, expected, text);
  return value;
}

}  // namespace mivo::cli
