// SPDX-License-Identifier: MIT
#include "adapters/icu/QuantityFormatters.h"

#include <unicode/listformatter.h>
#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>

#include <array>
#include <cmath>
#include <memory>
#include <span>
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

// A formatter of numbers as the locale groups them, with `digits` after the decimal sign.
LocalizedNumberFormatter numbers(const icu::Locale& locale, int digits) {
  return icu::number::NumberFormatter::withLocale(locale)
      .precision(Precision::fixedFraction(digits))
      .roundingMode(UNUM_ROUND_HALFUP)
      .sign(UNUM_SIGN_NEGATIVE);
}

icu::UnicodeString text(const LocalizedNumberFormatter& formatter, double number) {
  UErrorCode status = U_ZERO_ERROR;
  return formatter.formatDouble(number, status).toString(status);
}

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
    if (units == DurationUnits::hours) return utf8(text(hours, sign * wholeHours));
    if (wholeHours < 1) return utf8(text(minutes, sign * allMinutes));
    return utf8(joined(*list, {text(hours, sign * wholeHours), text(minutes, std::fmod(allMinutes, 60))}));
  }

 private:
  DurationUnits units;
  LocalizedNumberFormatter hours, minutes;
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
    if (unit == WeightUnit::kilograms) return utf8(text(kilograms, weightInKg));
    const double inPounds = weightInKg / kilogramsPer(WeightUnit::pounds);
    return utf8(unit == WeightUnit::pounds ? text(pounds, inPounds) : inStones(inPounds));
  }

 private:
  static LocalizedNumberFormatter weights(const icu::Locale& locale, int digits, icu::MeasureUnit unit) {
    return numbers(locale, digits).unit(std::move(unit)).unitWidth(UNUM_UNIT_WIDTH_SHORT);
  }

  icu::UnicodeString inStones(double inPounds) const {
    const double poundsPerStone = 14, rounded = std::round(inPounds);
    const double wholeStones = std::trunc(rounded / poundsPerStone), rest = std::fmod(rounded, poundsPerStone);
    if (wholeStones == 0) return text(wholePounds, rest);
    return joined(*list, {text(stones, wholeStones), text(wholePounds, std::abs(rest))});
  }

  LocalizedNumberFormatter kilograms, pounds, stones, wholePounds;
  std::unique_ptr<icu::ListFormatter> list;
};

class IcuNumberFormatter final : public NumberFormatter {
 public:
  explicit IcuNumberFormatter(icu::Locale chosen) : locale{std::move(chosen)}, integers{numbers(locale, 0)} {}

  std::string string(std::int64_t number) const override {
    UErrorCode status = U_ZERO_ERROR;
    return utf8(integers.formatInt(number, status).toString(status));
  }

  std::string string(double number, int fractionDigits) const override {
    return utf8(text(fractionDigits == 0 ? integers : numbers(locale, fractionDigits), number));
  }

 private:
  icu::Locale locale;
  LocalizedNumberFormatter integers;
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
