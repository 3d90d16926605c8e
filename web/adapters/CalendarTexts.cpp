// SPDX-License-Identifier: MIT
#include "web/adapters/CalendarTexts.h"

#include <utility>

#include "adapters/texts/DateFormatters.h"
#include "adapters/texts/LocaleFormatters.h"
#include "web/locale/ImportedTexts.h"

namespace mivo::web {
namespace {

/// A formatter of a calendar, made anew when that has moved to another zone.
template <class Formatter>
class Following {
 public:
  using Make = Client<Formatter> (*)(Client<adapters::DateTexts>, const adapters::ZonedCalendar&);

  Following(std::shared_ptr<const host::WeekCalendar> followed, Make makes)
      : calendar{std::move(followed)}, make{makes} {}

  const Formatter& present() const {
    const auto& now = calendar->present().zone();
    if (!made || zone != now) made = make(importedDateTexts(), calendar->present());
    zone = now;
    return *made;
  }

 private:
  std::shared_ptr<const host::WeekCalendar> calendar;
  Make make;
  mutable std::shared_ptr<const adapters::TimeZone> zone;
  mutable Client<Formatter> made;
};

class FollowingDates final : public DateFormatter {
 public:
  explicit FollowingDates(std::shared_ptr<const host::WeekCalendar> calendar)
      : texts{std::move(calendar), &adapters::dateFormatter} {}
  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    return texts.present().string(date, skeleton);
  }

 private:
  Following<DateFormatter> texts;
};

class FollowingIntervals final : public DateIntervalFormatter {
 public:
  explicit FollowingIntervals(std::shared_ptr<const host::WeekCalendar> calendar)
      : texts{std::move(calendar), &adapters::dateIntervalFormatter} {}
  std::optional<std::string> string(DateInterval interval) const override { return texts.present().string(interval); }

 private:
  Following<DateIntervalFormatter> texts;
};

}  // namespace

void fillTexts(Dependencies& clients, std::shared_ptr<const host::WeekCalendar> calendar) {
  adapters::makeFormatters(importedQuantityTexts(), importedDateTexts(), calendar->present()).fill(clients);
  clients.dateFormatter = std::make_shared<const FollowingDates>(calendar);
  clients.dateIntervalFormatter = std::make_shared<const FollowingIntervals>(std::move(calendar));
  clients.texts = importedTextLookup();
}

}  // namespace mivo::web
