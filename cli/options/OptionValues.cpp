// SPDX-License-Identifier: MIT
#include "cli/options/OptionValues.h"

#include <charconv>
#include <vector>

#include "adapters/icu/LanguageWords.h"
#include "host/dates/SpokenDate.h"
#include "host/place/TypedDates.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::cli {
namespace {

using Order = std::optional<host::DateOrder>;

constexpr std::array<Choice<Order>, 3> dateOrders{
    {{"", std::nullopt}, {"day-first", host::DateOrder::dayFirst}, {"month-first", host::DateOrder::monthFirst}}};

/// The shortest name of each.
std::vector<std::string> weightUnitNames() {
  std::vector<std::string> names;
  for (const WeightUnit unit : {WeightUnit::kilograms, WeightUnit::pounds, WeightUnit::stones})
    names.emplace_back(weightUnitSign(unit));
  return names;
}

}  // namespace

CLI::Option* addDateOrder(CLI::App& command, std::string& order, const std::string& description) {
  return command.add_option("--date-order", order, description)->type_name(typeName(namesOf(dateOrders)));
}

CLI::Option* addWeightUnit(CLI::App& command, std::string& unit, const std::string& description) {
  return command.add_option("--weight-unit", unit, description)->type_name(typeName(weightUnitNames()));
}

Read<bool> readFormat(std::string_view text) { return readChoice("--format", formats, text); }

Read<Order> readDateOrder(std::string_view text) { return readChoice("--date-order", dateOrders, text); }

Read<std::optional<WeightUnit>> readWeightUnit(std::string_view text) {
  const auto unit = weightUnitNamed(text);
  if (!unit && !text.empty()) return wrong("--weight-unit", "expected " + alternatives(weightUnitNames()), text);
  return unit;
}

std::string answeringOption(host::ImportFault::Asks asks) {
  switch (asks) {
    case host::ImportFault::Asks::nothing:
      return "";
    case host::ImportFault::Asks::dateOrder:
      return "--date-order " + alternatives(namesOf(dateOrders)) + " says it";
    case host::ImportFault::Asks::weightUnit:
      return "--weight-unit " + alternatives(weightUnitNames()) + " says it";
  }
  return "";
}

Read<Date> readTypedDate(std::string_view option, std::string_view text, const adapters::UserLocale& locale,
                         const adapters::TimeZone& zone, Date now, std::optional<Date> after) {
  const auto date = host::readTypedDate(text, [&] { return adapters::dateWords(locale); }, zone, now, after);
  if (date) return *date;
  const auto& readings = date.error().readings;
  if (!readings)
    return wrong(option, "expected a date and time, as in 2026-03-01 20:00, 20:00, \"yesterday 8 pm\" or \"2h ago\"",
                 text);
  return wrong(option,
               filledIn(host::expectedOneOfTwo,
                        {host::typedDate(readings->first, zone), host::typedDate(readings->second, zone)}),
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
