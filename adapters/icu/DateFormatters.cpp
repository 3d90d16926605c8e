// SPDX-License-Identifier: MIT
#include "adapters/icu/DateFormatters.h"

#include <unicode/dtitvfmt.h>
#include <unicode/smpdtfmt.h>

#include <map>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "adapters/icu/IcuCalendar.h"

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

class IcuDateFormatter final : public DateFormatter {
 public:
  IcuDateFormatter(const UserLocale& userLocale, const ZonedCalendar& calendar)
      : locale{userLocale.tag()}, zone{calendar.zone()}, dates{calendar.dates()} {}

  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    if (!isRepresentable(date)) return std::nullopt;
    const std::lock_guard lock{guard};
    Format& format = formatOf(skeleton);
    if (!format.icu) return std::nullopt;
    if (format.decidedBy == DecidedBy::time) return format.text(zone->wallTime(wholeSecond(date)));
    return textOfDay(format, zone->day(wholeSecond(date)));
  }

 private:
  struct Format {
    DecidedBy decidedBy;
    std::unique_ptr<icu::DateFormat> icu;
    std::unordered_map<std::int64_t, std::string> kept;

    std::string text(local_seconds wall) const {
      icu::UnicodeString text;
      return utf8(icu->format(millisecondsOf(wall), text));
    }
  };

  std::string textOfDay(Format& format, local_days day) const {
    constexpr std::size_t mostKept = 5000;  // thirteen years of days
    const std::int64_t key = keyOf(format.decidedBy, day);
    if (const auto found = format.kept.find(key); found != format.kept.end()) return found->second;
    if (format.kept.size() >= mostKept) format.kept.clear();
    return format.kept.emplace(key, format.text(day)).first->second;
  }

  std::int64_t keyOf(DecidedBy decidedBy, local_days day) const {
    if (decidedBy == DecidedBy::weekday) return weekday{day}.c_encoding();
    if (decidedBy == DecidedBy::date) return day.time_since_epoch().count();
    const DateFields fields = dates->fields(day);
    return fields.month * 100 + fields.day;
  }

  Format& formatOf(std::string_view skeleton) const {
    if (const auto found = formats.find(skeleton); found != formats.end()) return found->second;
    const auto identifier = dates->identifier();
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::DateFormat> format{icu::DateFormat::createInstanceForSkeleton(
        openCalendar(identifier, locale).release(), icu::UnicodeString::fromUTF8(std::string{skeleton}),
        localeWithCalendar(identifier, locale), status)};
    if (U_FAILURE(status)) format.reset();
    return formats
        .emplace(skeleton, Format{decidedBy(skeleton, identifier == gregorianIdentifier), std::move(format), {}})
        .first->second;
  }

  std::string locale;
  std::shared_ptr<const TimeZone> zone;
  std::shared_ptr<const DateSystem> dates;
  mutable std::mutex guard;
  mutable std::map<std::string, Format, std::less<>> formats;
};

class IcuDateIntervalFormatter final : public DateIntervalFormatter {
 public:
  IcuDateIntervalFormatter(const UserLocale& userLocale, const ZonedCalendar& calendar)
      : locale{userLocale.tag()}, identifier{calendar.identifier()}, zone{calendar.zone()} {}

  std::optional<std::string> string(DateInterval interval) const override {
    if (!isRepresentable(interval.start) || !isRepresentable(interval.end) || interval.end < interval.start)
      return std::nullopt;
    const local_days from = zone->day(wholeSecond(interval.start));
    const local_days to = std::max(from, zone->day(ceil<seconds>(interval.end) - seconds{1}));

    const std::lock_guard lock{guard};
    if (!format) open();
    if (!format) return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    begin->setTime(millisecondsOf(from), status);
    end->setTime(millisecondsOf(to), status);
    icu::UnicodeString text;
    icu::FieldPosition ignored;
    format->format(*begin, *end, text, ignored, status);
    return U_FAILURE(status) ? std::nullopt : std::optional{utf8(text)};
  }

 private:
  void open() const {
    UErrorCode status = U_ZERO_ERROR;
    begin = openCalendar(identifier, locale);
    end = openCalendar(identifier, locale);
    if (!begin || !end) return;
    std::unique_ptr<icu::DateIntervalFormat> opened{
        icu::DateIntervalFormat::createInstance("yMMMd", localeWithCalendar(identifier, locale), status)};
    if (U_FAILURE(status)) return;
    opened->setTimeZone(*icu::TimeZone::getGMT());
    format = std::move(opened);
  }

  std::string locale, identifier;
  std::shared_ptr<const TimeZone> zone;
  mutable std::mutex guard;
  mutable std::unique_ptr<icu::DateIntervalFormat> format;
  mutable std::unique_ptr<icu::Calendar> begin, end;
};

}  // namespace

Client<DateFormatter> dateFormatter(const UserLocale& locale, const ZonedCalendar& calendar) {
  return std::make_shared<const IcuDateFormatter>(locale, calendar);
}

Client<DateIntervalFormatter> dateIntervalFormatter(const UserLocale& locale, const ZonedCalendar& calendar) {
  return std::make_shared<const IcuDateIntervalFormatter>(locale, calendar);
}

}  // namespace mivo::adapters
