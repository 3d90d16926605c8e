// SPDX-License-Identifier: MIT
#include "adapters/texts/DateFormatters.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace mivo::adapters {

using namespace std::chrono;

namespace {

bool consistsOf(std::string_view letters, std::string_view skeleton) {
  return skeleton.find_first_not_of(letters) == std::string_view::npos;
}

// What decides a text: of a date, its weekday or its month and day may be enough.
enum class DecidedBy { weekday, monthAndDay, date, time };

DecidedBy decidedBy(std::string_view skeleton, bool isGregorian) {
  if (consistsOf("Ec", skeleton)) return DecidedBy::weekday;
  if (isGregorian && consistsOf("MLd", skeleton)) return DecidedBy::monthAndDay;
  return consistsOf("GyuUrQqMLdDEcg", skeleton) ? DecidedBy::date : DecidedBy::time;
}

class TextDateFormatter final : public DateFormatter {
 public:
  TextDateFormatter(Client<DateTexts> dateTexts, const ZonedCalendar& calendar)
      : texts{std::move(dateTexts)}, zone{calendar.zone()}, dates{calendar.dates()} {}

  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    if (!isRepresentable(date)) return std::nullopt;
    const std::lock_guard lock{guard};
    Kept& kept = keptOf(skeleton);
    if (kept.decidedBy == DecidedBy::time) return texts->date(zone->wallTime(wholeSecond(date)), skeleton);
    return textOfDay(kept, zone->day(wholeSecond(date)), skeleton);
  }

 private:
  struct Kept {
    DecidedBy decidedBy;
    std::unordered_map<std::int64_t, std::optional<std::string>> texts;
  };

  std::optional<std::string> textOfDay(Kept& kept, local_days day, std::string_view skeleton) const {
    constexpr std::size_t mostKept = 5000;  // thirteen years of days
    const std::int64_t key = keyOf(kept.decidedBy, day);
    if (const auto found = kept.texts.find(key); found != kept.texts.end()) return found->second;
    if (kept.texts.size() >= mostKept) kept.texts.clear();
    return kept.texts.emplace(key, texts->date(day, skeleton)).first->second;
  }

  std::int64_t keyOf(DecidedBy decidedBy, local_days day) const {
    if (decidedBy == DecidedBy::weekday) return weekday{day}.c_encoding();
    if (decidedBy == DecidedBy::date) return day.time_since_epoch().count();
    const DateFields fields = dates->fields(day);
    return fields.month * 100 + fields.day;
  }

  Kept& keptOf(std::string_view skeleton) const {
    if (const auto found = bySkeleton.find(skeleton); found != bySkeleton.end()) return found->second;
    const bool isGregorian = dates->identifier() == gregorianIdentifier;
    return bySkeleton.emplace(skeleton, Kept{decidedBy(skeleton, isGregorian), {}}).first->second;
  }

  Client<DateTexts> texts;
  std::shared_ptr<const TimeZone> zone;
  std::shared_ptr<const DateSystem> dates;
  mutable std::mutex guard;
  mutable std::map<std::string, Kept, std::less<>> bySkeleton;
};

class TextDateIntervalFormatter final : public DateIntervalFormatter {
 public:
  TextDateIntervalFormatter(Client<DateTexts> dateTexts, const ZonedCalendar& calendar)
      : texts{std::move(dateTexts)}, zone{calendar.zone()} {}

  std::optional<std::string> string(DateInterval interval) const override {
    if (!isRepresentable(interval.start) || !isRepresentable(interval.end) || interval.end < interval.start)
      return std::nullopt;
    const local_days from = zone->day(wholeSecond(interval.start));
    return texts->interval(from, std::max(from, zone->day(ceil<seconds>(interval.end) - seconds{1})));
  }

 private:
  Client<DateTexts> texts;
  std::shared_ptr<const TimeZone> zone;
};

}  // namespace

Client<DateFormatter> dateFormatter(Client<DateTexts> texts, const ZonedCalendar& calendar) {
  return std::make_shared<const TextDateFormatter>(std::move(texts), calendar);
}

Client<DateIntervalFormatter> dateIntervalFormatter(Client<DateTexts> texts, const ZonedCalendar& calendar) {
  return std::make_shared<const TextDateIntervalFormatter>(std::move(texts), calendar);
}

}  // namespace mivo::adapters
