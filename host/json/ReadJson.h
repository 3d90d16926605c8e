// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <ranges>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "host/json/RecordJson.h"
#include "mivo/model/Date.h"
#include "mivo/model/UUID.h"
#include "mivo/platform/JSONValue.h"
#include "mivo/store/Action.h"
#include "mivo/store/Names.h"

namespace mivo::host {

// The values that `writeJson` wrote for a page, read back. Each is checked: its kind, its range, that a record has
// every field once and no other, that a union holds a case that is listed.

/// Where in a text something is wrong, and what was expected there.
struct JsonFault {
  std::string path;    ///< "didTapStart.start"; empty for all of the text
  std::string reason;  ///< "expected a number"
};

/// "didTapStart.start: expected a number"
std::string describe(const JsonFault& fault);

template <class Value>
using JsonRead = tl::expected<Value, JsonFault>;

/// Longer texts are refused, in bytes.
inline constexpr std::size_t longestJson = 1U << 20;

JsonRead<JSONValue> parseJson(std::string_view text);

// What is wrong leaves the fault, and answers with nothing or false. What does not hang on the type is a function of
// its own: all else is there once for each record and each action, and a page has to load it.

/// Always false, with "expected " before what was.
bool expectedInJson(std::string_view what, JsonFault& fault);

/// Always false: the fault is of what stands under a name, or at a place.
bool within(std::string_view name, JsonFault& fault);
bool within(std::size_t place, JsonFault& fault);

template <class Value>
std::optional<Value> readValue(const JSONValue& json, JsonFault& fault);
template <>
std::optional<bool> readValue<bool>(const JSONValue& json, JsonFault& fault);
/// Whole or not.
template <>
std::optional<double> readValue<double>(const JSONValue& json, JsonFault& fault);
template <>
std::optional<std::string> readValue<std::string>(const JSONValue& json, JsonFault& fault);
template <>
std::optional<Date> readValue<Date>(const JSONValue& json, JsonFault& fault);
template <>
std::optional<UUID> readValue<UUID>(const JSONValue& json, JsonFault& fault);

/// A whole number within these limits.
std::optional<std::int64_t> wholeIn(std::int64_t least, std::int64_t most, const JSONValue& json, JsonFault& fault);

template <std::integral Value>
std::optional<Value> readWhole(const JSONValue& json, JsonFault& fault) {
  using Limits = std::numeric_limits<Value>;
  constexpr std::int64_t mostOfAll = std::numeric_limits<std::int64_t>::max();
  constexpr auto most =
      std::in_range<std::int64_t>(Limits::max()) ? static_cast<std::int64_t>(Limits::max()) : mostOfAll;
  const auto whole = wholeIn(static_cast<std::int64_t>(Limits::min()), most, json, fault);
  return whole ? std::optional{static_cast<Value>(*whole)} : std::nullopt;
}

/// The place of the name that the text is; of those that are empty none.
std::optional<std::size_t> placeOfName(std::span<const std::string_view> names, const JSONValue& json,
                                       JsonFault& fault);

template <class Enumeration>
std::optional<Enumeration> readEnumerator(const JSONValue& json, JsonFault& fault) {
  const auto place = placeOfName(enumeratorNames<Enumeration>, json, fault);
  return place ? std::optional{static_cast<Enumeration>(*place)} : std::nullopt;
}

/// The fields of an object, one after another, until one is wrong.
class JsonFieldReader {
 public:
  JsonFieldReader(const JSONValue& json, JsonFault& fault);

  /// Also where it is null; nothing after a fault, and where it is missing, which is one.
  const JSONValue* field(std::string_view name);
  /// What was read of the field.
  void read(std::string_view name, bool isWell) { isAllWell = isWell || within(name, fault); }
  /// Whether all went well, and the object has no other fields.
  bool end(std::string_view record);

 private:
  const JSONValue::Object* members;
  JsonFault& fault;
  std::size_t count = 0;
  bool isAllWell;
};

template <class Listed>
std::optional<Listed> readRecord(const JSONValue& json, JsonFault& fault) {
  std::optional<Listed> record{std::in_place};
  JsonFieldReader reader{json, fault};
  fields(*record, [&]<class Field>(std::string_view name, Field& field) {
    const JSONValue* const found = reader.field(name);
    if (!found) return;
    auto read = readValue<Field>(*found, fault);
    reader.read(name, read.has_value());
    if (read) field = *std::move(read);
  });
  if (!reader.end(typeName<Listed>())) record.reset();
  return record;
}

/// The elements of a list.
const JSONValue::Array* elementsOf(const JSONValue& json, JsonFault& fault);
/// The same of a list of two.
const JSONValue::Array* pairOf(const JSONValue& json, JsonFault& fault);

template <class Pair>
std::optional<Pair> readPair(const JSONValue& json, JsonFault& fault) {
  const auto* const two = pairOf(json, fault);
  if (!two) return std::nullopt;
  auto first = readValue<std::remove_const_t<typename Pair::first_type>>((*two)[0], fault);
  if (!first) return within(0, fault), std::nullopt;
  auto second = readValue<typename Pair::second_type>((*two)[1], fault);
  if (!second) return within(1, fault), std::nullopt;
  return Pair{*std::move(first), *std::move(second)};
}

/// Lists, and maps as lists of pairs.
template <class List>
std::optional<List> readList(const JSONValue& json, JsonFault& fault) {
  const auto* const given = elementsOf(json, fault);
  if (!given) return std::nullopt;
  std::vector<std::ranges::range_value_t<List>> elements;
  elements.reserve(given->size());
  for (const JSONValue& element : *given) {
    auto read = readValue<std::ranges::range_value_t<List>>(element, fault);
    if (!read) return within(elements.size(), fault), std::nullopt;
    elements.push_back(*std::move(read));
  }
  if constexpr (std::constructible_from<List, std::vector<std::ranges::range_value_t<List>>>)
    return List{std::move(elements)};
  else
    return List{elements.begin(), elements.end()};
}

/// A case alone, "didGoBack", or with its value, {"didOpen": "badges"}.
struct NamedCase {
  std::string_view name;  ///< empty where it is neither
  const JSONValue* value = nullptr;
};

NamedCase namedCase(const JSONValue& json);
std::optional<std::size_t> placeOfCase(std::span<const std::string_view> names, const NamedCase& given,
                                       JsonFault& fault);
bool standsAlone(const NamedCase& given, JsonFault& fault);
bool hasValue(const NamedCase& given, JsonFault& fault);

template <class Union, class Case>
std::optional<Union> readCase(const NamedCase& given, JsonFault& fault) {
  if constexpr (std::is_empty_v<Case>) {
    return standsAlone(given, fault) ? std::optional<Union>{Case{}} : std::nullopt;
  } else {
    if (!hasValue(given, fault)) return std::nullopt;
    if constexpr (hasOneValue<Case>) {
      auto read = readValue<PayloadOf<Case>>(*given.value, fault);
      return read ? std::optional<Union>{Case{*std::move(read)}} : std::nullopt;
    } else {
      auto read = readValue<Case>(*given.value, fault);
      return read ? std::optional<Union>{*std::move(read)} : std::nullopt;
    }
  }
}

template <class Union, class... Case>
std::optional<Union> readCases(const JSONValue& json, JsonFault& fault, JsonCases<Case...>) {
  using Read = std::optional<Union> (*)(const NamedCase&, JsonFault&);
  static constexpr std::array<std::string_view, sizeof...(Case)> names{caseName<Case>...};
  static constexpr std::array<Read, sizeof...(Case)> reads{readCase<Union, Case>...};
  const NamedCase given = namedCase(json);
  const auto place = placeOfCase(names, given, fault);
  if (!place) return std::nullopt;
  auto read = reads[*place](given, fault);
  if (!read) within(given.name, fault);
  return read;
}

template <class Value>
std::optional<Value> readValue(const JSONValue& json, JsonFault& fault) {
  if constexpr (isOptional<Value>) {
    if (json.isNull()) return Value{};
    auto read = readValue<typename Value::value_type>(json, fault);
    return read ? std::optional<Value>{std::move(read)} : std::nullopt;
  } else if constexpr (std::integral<Value>) {
    return readWhole<Value>(json, fault);
  } else if constexpr (std::is_enum_v<Value>) {
    return readEnumerator<Value>(json, fault);
  } else if constexpr (isPair<Value>) {
    return readPair<Value>(json, fault);
  } else if constexpr (Record<Value>) {
    return readRecord<Value>(json, fault);
  } else if constexpr (CaseUnion<Value>) {
    return readCases<Value>(json, fault, ListedCasesOf<Value>{});
  } else {
    return readList<Value>(json, fault);
  }
}

template <class Value>
JsonRead<Value> readJson(const JSONValue& json) {
  JsonFault fault;
  auto read = readValue<Value>(json, fault);
  if (!read) return tl::unexpected{std::move(fault)};
  return *std::move(read);
}

}  // namespace mivo::host
