// SPDX-License-Identifier: MIT
#include "adapters/texts/QuantityFormatters.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace mivo::adapters {
namespace {

double wholeMinutes(double seconds) {
  constexpr double longest = 9e12;  // beyond it a double resolves milliseconds no more
  if (seconds > longest) return std::floor(seconds / 60);
  return std::floor(std::round(seconds * 1000) / 60'000);
}

class TextDurationFormatter final : public DurationFormatter {
 public:
  TextDurationFormatter(Client<QuantityTexts> quantities, DurationUnits shown)
      : texts{std::move(quantities)}, units{shown} {}

  std::optional<std::string> string(double seconds) const override {
    if (!std::isfinite(seconds)) return std::nullopt;
    const double sign = seconds < 0 ? -1 : 1;
    const double allMinutes = wholeMinutes(std::abs(seconds));
    const double wholeHours = std::floor(allMinutes / 60);
    if (units == DurationUnits::hours) return texts->quantity(sign * wholeHours, Unit::hour, 0);
    if (wholeHours < 1) return texts->quantity(sign * allMinutes, Unit::minute, 0);
    return texts->joined(texts->quantity(sign * wholeHours, Unit::hour, 0),
                         texts->quantity(std::fmod(allMinutes, 60), Unit::minute, 0));
  }

 private:
  Client<QuantityTexts> texts;
  DurationUnits units;
};

class TextMassFormatter final : public MassFormatter {
 public:
  explicit TextMassFormatter(Client<QuantityTexts> quantities) : texts{std::move(quantities)} {}

  std::string string(double weightInKg, WeightUnit unit) const override {
    if (unit == WeightUnit::kilograms) return texts->quantity(weightInKg, Unit::kilogram, 1);
    const double inPounds = weightInKg / kilogramsPer(WeightUnit::pounds);
    return unit == WeightUnit::pounds ? texts->quantity(inPounds, Unit::pound, 1) : inStones(inPounds);
  }

 private:
  std::string inStones(double inPounds) const {
    const double rounded = std::round(inPounds);
    const double whole = std::trunc(rounded / poundsPerStone), rest = std::fmod(rounded, poundsPerStone);
    if (whole == 0) return texts->quantity(rest, Unit::pound, 0);
    return texts->joined(texts->quantity(whole, Unit::stone, 0), texts->quantity(std::abs(rest), Unit::pound, 0));
  }

  Client<QuantityTexts> texts;
};

class TextNumberFormatter final : public NumberFormatter {
 public:
  explicit TextNumberFormatter(Client<QuantityTexts> quantities) : texts{std::move(quantities)} {}

  std::string string(std::int64_t number) const override { return texts->number(number); }
  std::string string(double number, int fractionDigits) const override {
    return texts->number(number, std::clamp(fractionDigits, 0, QuantityTexts::mostFractionDigits));
  }

 private:
  Client<QuantityTexts> texts;
};

}  // namespace

Client<DurationFormatter> durationFormatter(Client<QuantityTexts> texts, DurationUnits units) {
  return std::make_shared<const TextDurationFormatter>(std::move(texts), units);
}

Client<MassFormatter> massFormatter(Client<QuantityTexts> texts) {
  return std::make_shared<const TextMassFormatter>(std::move(texts));
}

Client<NumberFormatter> numberFormatter(Client<QuantityTexts> texts) {
  return std::make_shared<const TextNumberFormatter>(std::move(texts));
}

}  // namespace mivo::adapters
