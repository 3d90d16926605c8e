// SPDX-License-Identifier: MIT
#include "adapters/icu/IcuQuantityTexts.h"

#include <unicode/listformatter.h>
#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>

#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

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

  std::string text(double number) const {
    const std::lock_guard lock{guard};
    UErrorCode status = U_ZERO_ERROR;
    return utf8(formatter.formatDouble(number, status).toString(status));
  }

  std::string text(std::int64_t number) const {
    const std::lock_guard lock{guard};
    UErrorCode status = U_ZERO_ERROR;
    return utf8(formatter.formatInt(number, status).toString(status));
  }

 private:
  LocalizedNumberFormatter formatter;
  mutable std::mutex guard;
};

using OfEachLength = std::array<std::unique_ptr<const SharedFormatter>, QuantityTexts::mostFractionDigits + 1>;

template <class Open>
OfEachLength ofEachLength(const Open& open) {
  OfEachLength formatters;
  for (std::size_t digits = 0; digits < formatters.size(); ++digits)
    formatters[digits] = std::make_unique<const SharedFormatter>(open(static_cast<int>(digits)));
  return formatters;
}

class IcuQuantityTexts final : public QuantityTexts {
 public:
  explicit IcuQuantityTexts(const icu::Locale& locale)
      : plain{ofEachLength([&](int digits) { return numbers(locale, digits); })} {
    using icu::MeasureUnit;
    const auto add = [&](const MeasureUnit& unit, UNumberUnitWidth width) {
      units.push_back(ofEachLength([&](int digits) { return numbers(locale, digits).unit(unit).unitWidth(width); }));
    };
    add(MeasureUnit::getHour(), UNUM_UNIT_WIDTH_NARROW);  // in the order of Unit
    add(MeasureUnit::getMinute(), UNUM_UNIT_WIDTH_NARROW);
    add(MeasureUnit::getKilogram(), UNUM_UNIT_WIDTH_SHORT);
    add(MeasureUnit::getPound(), UNUM_UNIT_WIDTH_SHORT);
    add(MeasureUnit::getStone(), UNUM_UNIT_WIDTH_SHORT);
    UErrorCode status = U_ZERO_ERROR;
    list.reset(icu::ListFormatter::createInstance(locale, ULISTFMT_TYPE_UNITS, ULISTFMT_WIDTH_NARROW, status));
  }

  std::string number(std::int64_t number) const override { return plain.front()->text(number); }

  std::string number(double number, int fractionDigits) const override {
    return plain[static_cast<std::size_t>(fractionDigits)]->text(number);
  }

  std::string quantity(double number, Unit unit, int fractionDigits) const override {
    return units[static_cast<std::size_t>(unit)][static_cast<std::size_t>(fractionDigits)]->text(number);
  }

  std::string joined(const std::string& first, const std::string& second) const override {
    const std::array parts{icu::UnicodeString::fromUTF8(first), icu::UnicodeString::fromUTF8(second)};
    icu::UnicodeString whole;
    UErrorCode status = U_ZERO_ERROR;
    list->format(parts.data(), static_cast<std::int32_t>(parts.size()), whole, status);
    return utf8(whole);
  }

 private:
  OfEachLength plain;
  std::vector<OfEachLength> units;
  std::unique_ptr<icu::ListFormatter> list;
};

}  // namespace

Client<QuantityTexts> icuQuantityTexts(const UserLocale& locale) {
  return std::make_shared<const IcuQuantityTexts>(icuLocale(locale));
}

}  // namespace mivo::adapters
