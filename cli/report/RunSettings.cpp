// SPDX-License-Identifier: MIT
#include "cli/report/RunSettings.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include "adapters/icu/Calendars.h"
#include "adapters/system/SystemClock.h"
#include "adapters/time/TimeZoneNames.h"
#include "host/dates/DateText.h"
#include "host/history/FieldRules.h"
#include "host/text/BadRecord.h"

namespace mivo::cli {
namespace {

template <class Value>
using Read = tl::expected<Value, std::string>;

tl::unexpected<std::string> wrong(std::string_view option, std::string_view expected, std::string_view found) {
  return tl::unexpected{std::string{option} + ": " + std::string{expected} + ", found \"" + host::quotable(found) +
                        '"'};
}

tl::unexpected<std::string> wrong(std::string_view option, const std::string& sentence) {
  return tl::unexpected{std::string{option} + ": " + sentence};
}

template <class Value>
struct Choice {
  std::string_view name;
  Value value;
};

template <class Value>
Read<Value> choice(std::string_view option, std::string_view expected, std::span<const Choice<Value>> choices,
                   std::string_view text) {
  for (const auto& [name, value] : choices)
    if (name == text) return value;
  return wrong(option, expected, text);
}

constexpr std::array<Choice<TimeRange>, 3> ranges{
    {{"week", TimeRange::week}, {"month", TimeRange::month}, {"year", TimeRange::year}}};
constexpr std::array<Choice<StreakSettings::CountingEntity>, 2> countingEntities{
    {{"days", StreakSettings::CountingEntity::days}, {"fasts", StreakSettings::CountingEntity::fasts}}};
constexpr std::array<Choice<WeightUnit>, 3> weightUnits{
    {{"kg", WeightUnit::kilograms}, {"lb", WeightUnit::pounds}, {"st", WeightUnit::stones}}};
constexpr std::array<Choice<bool>, 2> formats{{{"text", false}, {"json", true}}};

Read<std::int64_t> number(std::string_view option, std::string_view expected, std::string_view text, std::int64_t low,
                          std::int64_t high) {
  std::int64_t value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc{} || read.ptr != text.data() + text.size() || value < low || value > high)
    return wrong(option, expected, text);
  return value;
}

Read<std::shared_ptr<const adapters::TimeZone>> timeZone(const std::string& name) {
  if (!name.empty()) {
    auto zone = adapters::TimeZone::load(name);
    return zone ? std::move(zone) : wrong("--time-zone", zone.error());
  }
  const auto systems = adapters::systemTimeZoneName();
  if (!systems) return tl::unexpected{systems.error()};
  return adapters::TimeZone::load(*systems);
}

Read<adapters::UserLocale> locale(const std::string& tag) {
  if (tag.empty()) return adapters::UserLocale::system();
  auto parsed = adapters::UserLocale::parse(tag);
  return parsed ? std::move(parsed) : wrong("--locale", parsed.error());
}

Read<int> firstWeekday(const std::string& text, const adapters::UserLocale& locale) {
  if (text.empty()) return locale.firstWeekday();
  return number("--first-weekday", "expected 1 (Sunday) to 7 (Saturday)", text, 1, 7).map([](std::int64_t day) {
    return static_cast<int>(day);
  });
}

Read<Date> now(const std::string& text, const adapters::TimeZone& zone) {
  if (text.empty()) return adapters::SystemClock{}.now();
  const auto date = host::parseDateText(text);
  const auto instant = date && date->hasTime ? host::instant(*date, zone) : std::nullopt;
  return instant ? Read<Date>{*instant} : wrong("--now", host::expectedDate, text);
}

Read<StreakSettings> streakSettings(const ReportOptions& options) {
  StreakSettings settings{.ignoreFastGoal = options.ignoreGoal};
  const auto entity =
      choice<StreakSettings::CountingEntity>("--count", "expected days or fasts", countingEntities, options.count);
  if (!entity) return tl::unexpected{entity.error()};
  settings.countingEntity = *entity;
  if (options.maxBreakHours.empty()) return settings;
  const auto hours =
      number("--max-break-hours", "expected whole hours from 0 to 87660000", options.maxBreakHours, 0, 87'660'000);
  if (!hours) return tl::unexpected{hours.error()};
  settings.maxBreakHours = *hours;
  return settings;
}

}  // namespace

tl::expected<RunSettings, std::string> runSettings(const ReportOptions& options) {
  const auto range = choice<TimeRange>("--range", "expected week, month or year", ranges, options.range);
  if (!range) return tl::unexpected{range.error()};
  const auto asJson = choice<bool>("--format", "expected text or json", formats, options.format);
  if (!asJson) return tl::unexpected{asJson.error()};
  std::optional<WeightUnit> weightUnit;
  if (!options.weightUnit.empty()) {
    const auto unit = choice<WeightUnit>("--weight-unit", "expected kg, lb or st", weightUnits, options.weightUnit);
    if (!unit) return tl::unexpected{unit.error()};
    weightUnit = *unit;
  }
  const auto streaks = streakSettings(options);
  if (!streaks) return tl::unexpected{streaks.error()};
  const auto zone = timeZone(options.timeZone);
  if (!zone) return tl::unexpected{zone.error()};
  const auto userLocale = locale(options.locale);
  if (!userLocale) return tl::unexpected{userLocale.error()};
  const auto weekday = firstWeekday(options.firstWeekday, *userLocale);
  if (!weekday) return tl::unexpected{weekday.error()};
  const auto calendar = adapters::makeCalendar(options.calendar, *zone, *weekday);
  if (!calendar) return wrong("--calendar", calendar.error());
  const auto instant = now(options.now, **zone);
  if (!instant) return tl::unexpected{instant.error()};
  return RunSettings{*range, *instant, *calendar, *userLocale, *streaks, weightUnit, *asJson};
}

}  // namespace mivo::cli
