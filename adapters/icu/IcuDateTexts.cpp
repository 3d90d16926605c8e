// SPDX-License-Identifier: MIT
#include "adapters/icu/IcuDateTexts.h"

#include <unicode/dtitvfmt.h>
#include <unicode/smpdtfmt.h>

#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "adapters/icu/IcuCalendar.h"

namespace mivo::adapters {

using namespace std::chrono;

namespace {

class IcuDateTexts final : public DateTexts {
 public:
  IcuDateTexts(const UserLocale& userLocale, std::string_view calendar)
      : locale{userLocale.tag()}, identifier{calendar} {}

  std::optional<std::string> date(local_seconds wall, std::string_view skeleton) const override {
    const std::lock_guard lock{guard};
    const icu::DateFormat* const format = formatOf(skeleton);
    if (!format) return std::nullopt;
    icu::UnicodeString text;
    return utf8(format->format(millisecondsOf(wall), text));
  }

  std::optional<std::string> interval(local_days first, local_days last) const override {
    const std::lock_guard lock{guard};
    if (!intervals) openIntervals();
    if (!intervals) return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    begin->setTime(millisecondsOf(first), status);
    end->setTime(millisecondsOf(last), status);
    icu::UnicodeString text;
    icu::FieldPosition ignored;
    intervals->format(*begin, *end, text, ignored, status);
    return U_FAILURE(status) ? std::nullopt : std::optional{utf8(text)};
  }

 private:
  const icu::DateFormat* formatOf(std::string_view skeleton) const {
    if (const auto found = formats.find(skeleton); found != formats.end()) return found->second.get();
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::DateFormat> format{icu::DateFormat::createInstanceForSkeleton(
        openCalendar(identifier, locale).release(), icu::UnicodeString::fromUTF8(std::string{skeleton}),
        localeWithCalendar(identifier, locale), status)};
    if (U_FAILURE(status)) format.reset();
    return formats.emplace(skeleton, std::move(format)).first->second.get();
  }

  void openIntervals() const {
    UErrorCode status = U_ZERO_ERROR;
    begin = openCalendar(identifier, locale);
    end = openCalendar(identifier, locale);
    if (!begin || !end) return;
    std::unique_ptr<icu::DateIntervalFormat> opened{
        icu::DateIntervalFormat::createInstance("yMMMd", localeWithCalendar(identifier, locale), status)};
    if (U_FAILURE(status)) return;
    opened->setTimeZone(*icu::TimeZone::getGMT());
    intervals = std::move(opened);
  }

  std::string locale, identifier;
  mutable std::mutex guard;
  mutable std::map<std::string, std::unique_ptr<icu::DateFormat>, std::less<>> formats;
  mutable std::unique_ptr<icu::DateIntervalFormat> intervals;
  mutable std::unique_ptr<icu::Calendar> begin, end;
};

}  // namespace

Client<DateTexts> icuDateTexts(const UserLocale& locale, std::string_view calendar) {
  return std::make_shared<const IcuDateTexts>(locale, calendar);
}

}  // namespace mivo::adapters
