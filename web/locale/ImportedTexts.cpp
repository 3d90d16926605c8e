// SPDX-License-Identifier: MIT
#include "web/locale/ImportedTexts.h"

#include <memory>

#include "web/locale/Imports.h"

namespace mivo::web {
namespace {

using namespace std::chrono;

double millisecondsOf(local_seconds wall) { return static_cast<double>(wall.time_since_epoch().count()) * 1000; }

class ImportedQuantityTexts final : public adapters::QuantityTexts {
 public:
  std::string number(std::int64_t number) const override {
    std::string text;
    importedWholeNumber(&text, number);
    return text;
  }

  std::string number(double number, int fractionDigits) const override {
    std::string text;
    importedNumber(&text, number, fractionDigits);
    return text;
  }

  std::string quantity(double number, adapters::Unit unit, int fractionDigits) const override {
    std::string text;
    importedQuantity(&text, number, static_cast<std::int32_t>(unit), fractionDigits);
    return text;
  }

  std::string joined(const std::string& first, const std::string& second) const override {
    std::string text;
    importedJoined(&text, first.data(), first.size(), second.data(), second.size());
    return text;
  }
};

class ImportedDateTexts final : public adapters::DateTexts {
 public:
  std::optional<std::string> date(local_seconds wall, std::string_view skeleton) const override {
    std::string text;
    if (!importedDate(&text, millisecondsOf(wall), skeleton.data(), skeleton.size())) return std::nullopt;
    return text;
  }

  std::optional<std::string> interval(local_days first, local_days last) const override {
    std::string text;
    if (!importedInterval(&text, millisecondsOf(first), millisecondsOf(last))) return std::nullopt;
    return text;
  }
};

class ImportedTextLookup final : public TextLookup {
 public:
  std::string text(std::string_view key, std::string_view context) const override {
    std::string text;
    importedText(&text, key.data(), key.size(), context.data(), context.size());
    return text;
  }

  std::string plural(std::string_view one, std::string_view many, std::int64_t count) const override {
    std::string text;
    importedPlural(&text, one.data(), one.size(), many.data(), many.size(), static_cast<double>(count));
    return text;
  }
};

}  // namespace

Client<adapters::QuantityTexts> importedQuantityTexts() { return std::make_shared<const ImportedQuantityTexts>(); }
Client<adapters::DateTexts> importedDateTexts() { return std::make_shared<const ImportedDateTexts>(); }
Client<TextLookup> importedTextLookup() { return std::make_shared<const ImportedTextLookup>(); }

}  // namespace mivo::web
