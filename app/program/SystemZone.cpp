// SPDX-License-Identifier: MIT
#include "app/program/SystemZone.h"

#include <atomic>
#include <utility>
#include <vector>

#include "adapters/icu/DateFormatters.h"
#include "adapters/time/TimeZone.h"
#include "adapters/time/ZonedCalendar.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "adapters/zoneinfo/TimeZoneNames.h"

namespace mivo::app {

/// The texts of dates in the present zone.
class FollowedTexts {
 public:
  const DateFormatter& dates() const { return *present.load()->first; }
  const DateIntervalFormatter& intervals() const { return *present.load()->second; }

  void take(const adapters::UserLocale& locale, const adapters::ZonedCalendar& calendar) {
    made.push_back(std::make_unique<const Pair>(adapters::dateFormatter(locale, calendar),
                                                adapters::dateIntervalFormatter(locale, calendar)));
    present = made.back().get();
  }

 private:
  using Pair = std::pair<Client<DateFormatter>, Client<DateIntervalFormatter>>;
  std::vector<std::unique_ptr<const Pair>> made;  // all stay: somebody may be reading in one
  std::atomic<const Pair*> present;
};

namespace {

class FollowedDates final : public DateFormatter {
 public:
  explicit FollowedDates(std::shared_ptr<const FollowedTexts> all) : texts{std::move(all)} {}
  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    return texts->dates().string(date, skeleton);
  }

 private:
  std::shared_ptr<const FollowedTexts> texts;
};

class FollowedIntervals final : public DateIntervalFormatter {
 public:
  explicit FollowedIntervals(std::shared_ptr<const FollowedTexts> all) : texts{std::move(all)} {}
  std::optional<std::string> string(DateInterval interval) const override {
    return texts->intervals().string(interval);
  }

 private:
  std::shared_ptr<const FollowedTexts> texts;
};

}  // namespace

SystemZone::SystemZone(std::shared_ptr<host::WeekCalendar> userCalendar, adapters::UserLocale userLocale)
    : calendar{std::move(userCalendar)}, locale{std::move(userLocale)}, texts{std::make_shared<FollowedTexts>()} {
  texts->take(locale, calendar->present());
}

void SystemZone::fill(Dependencies& clients) const {
  clients.dateFormatter = std::make_shared<FollowedDates>(texts);
  clients.dateIntervalFormatter = std::make_shared<FollowedIntervals>(texts);
}

std::optional<std::string> SystemZone::follow() {
  const auto name = adapters::systemTimeZoneName();
  if (!name || *name == calendar->timeZone()) return std::nullopt;
  auto zone = adapters::loadTimeZone(*name);
  if (!zone) return std::nullopt;
  calendar->moveTo(std::move(*zone));
  texts->take(locale, calendar->present());
  return *name;
}

}  // namespace mivo::app
