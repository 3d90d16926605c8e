// SPDX-License-Identifier: MIT
#include "web/engine/ReadOptions.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "adapters/json/NlohmannDecoder.h"
#include "host/dates/DateText.h"
#include "mivo/weights/WeightUnits.h"
#include "web/locale/FieldReader.h"
#include "web/locale/ReadTimeZone.h"

namespace mivo::web {
namespace {

bool takeRange(std::string_view name, TimeRange& range) {
  const auto found = std::ranges::find(allTimeRanges, name, [](TimeRange each) { return rawValue(each); });
  if (found != allTimeRanges.end()) range = *found;
  return found != allTimeRanges.end();
}

bool takeCount(std::string_view name, StreakSettings& streaks) {
  streaks.countingEntity =
      name == "fasts" ? StreakSettings::CountingEntity::fasts : StreakSettings::CountingEntity::days;
  return name == "fasts" || name == "days";
}

}  // namespace

tl::expected<EngineOptions, std::string> readOptions(std::string_view json) {
  const JSONValue options = adapters::NlohmannDecoder{}.decoded(json);
  if (!options.object()) return tl::unexpected{std::string{"options: expected an object"}};

  EngineOptions read;
  std::optional<Date> now;
  int firstWeekday = 2;
  auto zone = adapters::TimeZone::fromTransitions("UTC", {});
  FieldReader fields{options, ""};
  fields.text("now", "expected a date and time with its offset", [&](std::string_view text) {
    const auto date = host::parseDateText(text);
    now = date ? host::instant(*date) : std::nullopt;
    return now.has_value();
  });
  fields.text("range", "expected week, month or year",
              [&](std::string_view text) { return takeRange(text, read.report.range); });
  fields.whole("firstWeekday", "expected 1 (Sunday) to 7 (Saturday)", 1, 7,
               [&](std::int64_t day) { firstWeekday = static_cast<int>(day); });
  fields.read("timeZone", "expected an object",
              [&](const JSONValue& value) { return zone = readTimeZone(value, "timeZone"), true; });
  fields.text("count", "expected days or fasts",
              [&](std::string_view text) { return takeCount(text, read.report.streaks); });
  fields.flag("ignoreGoal", read.report.streaks.ignoreFastGoal);
  fields.whole("maxBreakHours", "expected whole hours from 0 to 87660000", 0, 87'660'000,
               [&](std::int64_t hours) { read.report.streaks.maxBreakHours = hours; });
  fields.text("weightUnit", "expected kg, lb or st", [&](std::string_view text) {
    const auto unit = weightUnitNamed(text);
    if (unit) read.report.weightUnit = *unit;
    return unit.has_value();
  });
  if (std::string wrong = fields.sentence(); !wrong.empty()) return tl::unexpected{std::move(wrong)};
  if (!zone) return tl::unexpected{std::move(zone.error())};
  if (!now) return tl::unexpected{std::string{"now: expected a date and time with its offset"}};

  read.report.now = *now;
  read.calendar = adapters::ZonedCalendar::gregorian(*zone, firstWeekday);
  read.report.calendar = read.calendar;
  return read;
}

}  // namespace mivo::web
