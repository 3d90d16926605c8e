// SPDX-License-Identifier: MIT
#include "cli/report/RunSettings.h"

#include <cstdint>

#include "adapters/icu/Calendars.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/locale/MessageCatalogue.h"
#include "adapters/standard/SystemClock.h"
#include "cli/options/OptionValues.h"

namespace mivo::cli {
namespace {

Read<int> firstWeekday(const std::string& text, const adapters::UserLocale& locale) {
  if (text.empty()) return locale.firstWeekday();
  return readNumber("--first-weekday", "expected 1 (Sunday) to 7 (Saturday)", text, 1, 7).map([](std::int64_t day) {
    return static_cast<int>(day);
  });
}

Read<Date> now(const std::string& text, const adapters::TimeZone& zone) {
  return text.empty() ? adapters::SystemClock{}.now() : readDate("--now", text, zone);
}

Read<StreakSettings> streakSettings(const ReportOptions& options) {
  StreakSettings settings{.ignoreFastGoal = options.ignoreGoal};
  const auto entity = readChoice("--count", countingEntities, options.count);
  if (!entity) return tl::unexpected{entity.error()};
  settings.countingEntity = *entity;
  if (options.maxBreakHours.empty()) return settings;
  const auto hours =
      readNumber("--max-break-hours", "expected whole hours from 0 to 87660000", options.maxBreakHours, 0, 87'660'000);
  if (!hours) return tl::unexpected{hours.error()};
  settings.maxBreakHours = *hours;
  return settings;
}

}  // namespace

tl::expected<RunSettings, std::string> runSettings(const ReportOptions& options) {
  const auto range = readChoice("--range", ranges, options.range);
  if (!range) return tl::unexpected{range.error()};
  const auto asJson = readFormat(options.format);
  if (!asJson) return tl::unexpected{asJson.error()};
  const auto weightUnit = readWeightUnit(options.weightUnit);
  if (!weightUnit) return tl::unexpected{weightUnit.error()};
  const auto dateOrder = readDateOrder(options.dateOrder);
  if (!dateOrder) return tl::unexpected{dateOrder.error()};
  const auto streaks = streakSettings(options);
  if (!streaks) return tl::unexpected{streaks.error()};
  const auto zone = readTimeZone(options.timeZone);
  if (!zone) return tl::unexpected{zone.error()};
  const auto userLocale = readLocale(options.locale);
  if (!userLocale) return tl::unexpected{userLocale.error()};
  const auto weekday = firstWeekday(options.firstWeekday, *userLocale);
  if (!weekday) return tl::unexpected{weekday.error()};
  const auto calendar = adapters::makeCalendar(options.calendar, *zone, *weekday);
  if (!calendar) return wrong("--calendar", calendar.error());
  const auto instant = now(options.now, **zone);
  if (!instant) return tl::unexpected{instant.error()};
  const host::ReportSettings report{*range, *instant, *calendar, *streaks,
                                    weightUnit->value_or(userLocale->weightUnit())};
  return RunSettings{report, *calendar, *userLocale, *weightUnit, *dateOrder, *asJson};
}

std::shared_ptr<const Dependencies> runDependencies(const RunSettings& settings) {
  auto clients = std::make_shared<Dependencies>();
  fillReportClients(*clients, settings.report);
  clients->texts = std::make_shared<adapters::MessageCatalogue>(settings.locale.tag());
  adapters::makeFormatters(settings.locale, *settings.calendar).fill(*clients);
  return clients;
}

}  // namespace mivo::cli
