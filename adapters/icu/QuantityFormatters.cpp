// SPDX-License-Identifier: MIT
#include "adapters/icu/QuantityFormatters.h"

#include <unicode/listformatter.h>
#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <mutex>
#include <utility>

#include "adapters/icu/IcuCalendar.h"

namespace mivo::adapters {

using icu::number::LocalizedNumberFormatter;
using icu::number::Precision;

namespace {

icu::Locale icuLocale(const UserLocale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  return icu::Locale::forLanguageTag(locale.tag(), status);
}

// Numbers as the locale groups them, with `digits` after the decimal sign.
LocalizedNumberFormatter numbers(const icu::Locale& locale, int digits) {
  return icu::number::NumberFormatter::withLocale(locale)
      .precision(Precision::fixedFraction(digits))
      .roundingMode(UNUM_ROUND_HALFUP)
      .sign(UNUM_SIGN_NEGATIVE);
}

// One for all threads. It needs no lock by itself, but compiles itself after some uses and hands the result to other
// threads in a way that the thread sanitizer cannot see inside the library.
class SharedFormatter {
 public:
  explicit SharedFormatter(LocalizedNumberFormatter opened) : formatter{std::move(opened)} {}

  icu::UnicodeString text(double number) const {
    const std::lock_guard lock{guard};
    UErrorCode status = U_ZERO_ERROR;
    return formatter.formatDouble(number, status).toString(status);
  }

  icu::UnicodeString text(std::int64_t number) const {
    const std::lock_guard lock{guard};
    UErrorCode status = U_ZERO_ERROR;
    return formatter.formatInt(number, status).toString(status);
  }

 private:
  LocalizedNumberFormatter formatter;
  mutable std::mutex guard;
};

// "12h 30m", "12 st 11 lb": two quantities that are one measure.
icu::UnicodeString joined(const icu::ListFormatter& list, std::array<icu::UnicodeString, 2> parts) {
  UErrorCode status = U_ZERO_ERROR;
  icu::UnicodeString whole;
  list.format(parts.data(), static_cast<std::int32_t>(parts.size()), whole, status);
  return whole;
}

std::unique_ptr<icu::ListFormatter> listOfUnits(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  return std::unique_ptr<icu::ListFormatter>{
      icu::ListFormatter::createInstance(locale, ULISTFMT_TYPE_UNITS, ULISTFMT_WIDTH_NARROW, status)};
}

double wholeMinutes(double seconds) {
  constexpr double longest = 9e12;  // beyond it a double resolves milliseconds no more
  if (seconds > longest) return std::floor(seconds / 60);
  return std::floor(std::round(seconds * 1000) / 60'000);
}

class IcuDurationFormatter final : public DurationFormatter {
 public:
  IcuDurationFormatter(const icu::Locale& locale, DurationUnits shown)
      : units{shown},
        hours{numbers(locale, 0).unit(icu::MeasureUnit::getHour()).unitWidth(UNUM_UNIT_WIDTH_NARROW)},
        minutes{numbers(locale, 0).unit(icu::MeasureUnit::getMinute()).unitWidth(UNUM_UNIT_WIDTH_NARROW)},
        list{listOfUnits(locale)} {}

  std::optional<std::string> string(double seconds) const override {
    if (!std::isfinite(seconds)) return std::nullopt;
    const double sign = seconds < 0 ? -1 : 1;
    const double allMinutes = wholeMinutes(std::abs(seconds));
    const double wholeHours = std::floor(allMinutes / 60);
    if (units == DurationUnits::hours) return utf8(hours.text(sign * wholeHours));
    if (wholeHours < 1) return utf8(minutes.text(sign * allMinutes));
    return utf8(joined(*list, {hours.text(sign * wholeHours), minutes.text(std::fmod(allMinutes, 60))}));
  }

 private:
  DurationUnits units;
  SharedFormatter hours, minutes;
  std::unique_ptr<icu::ListFormatter> list;
};

class IcuMassFormatter final : public MassFormatter {
 public:
  explicit IcuMassFormatter(const icu::Locale& locale)
      : kilograms{weights(locale, 1, icu::MeasureUnit::getKilogram())},
        pounds{weights(locale, 1, icu::MeasureUnit::getPound())},
        stones{weights(locale, 0, icu::MeasureUnit::getStone())},
        wholePounds{weights(locale, 0, icu::MeasureUnit::getPound())},
        list{listOfUnits(locale)} {}

  std::string string(double weightInKg, WeightUnit unit) const override {
    if (unit == WeightUnit::kilograms) return utf8(kilograms.text(weightInKg));
    const double inPounds = weightInKg / kilogramsPer(WeightUnit::pounds);
    return utf8(unit == WeightUnit::pounds ? pounds.text(inPounds) : inStones(inPounds));
  }

 private:
  static LocalizedNumberFormatter weights(const icu::Locale& locale, int digits, const icu::MeasureUnit& unit) {
    return numbers(locale, digits).unit(unit).unitWidth(UNUM_UNIT_WIDTH_SHORT);
  }

  icu::UnicodeString inStones(double inPounds) const {
    const double rounded = std::round(inPounds);
    const double whole = std::trunc(rounded / poundsPerStone), rest = std::fmod(rounded, poundsPerStone);
    if (whole == 0) return wholePounds.text(rest);
    return joined(*list, {stones.text(whole), wholePounds.text(std::abs(rest))});
  }

  SharedFormatter kilograms, pounds, stones, wholePounds;
  std::unique_ptr<icu::ListFormatter> list;
};

class IcuNumberFormatter final : public NumberFormatter {
 public:
  explicit IcuNumberFormatter(const icu::Locale& locale)
      : byDigits{SharedFormatter{numbers(locale, 0)}, SharedFormatter{numbers(locale, 1)},
                 SharedFormatter{numbers(locale, 2)}, SharedFormatter{numbers(locale, 3)}} {}

  std::string string(std::int64_t number) const override { return utf8(byDigits.front().text(number)); }

  std::string string(double number, int fractionDigits) const override {
    const auto most = static_cast<int>(byDigits.size()) - 1;
    return utf8(byDigits[static_cast<std::size_t>(std::clamp(fractionDigits, 0, most))].text(number));
  }

 private:
  std::array<SharedFormatter, 4> byDigits;
};

}  // namespace

Client<DurationFormatter> durationFormatter(const UserLocale& locale, DurationUnits units) {
  return std::make_shared<const IcuDurationFormatter>(icuLocale(locale), units);
}

Client<MassFormatter> massFormatter(const UserLocale& locale) {
  return std::make_shared<const IcuMassFormatter>(icuLocale(locale));
}

Client<NumberFormatter> numberFormatter(const UserLocale& locale) {
  return std::make_shared<const IcuNumberFormatter>(icuLocale(locale));
}

}  // namespace mivo::adapters
