// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "host/json/RecordJson.h"
#include "host/text/BadRecord.h"
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

inline tl::unexpected<JsonFault> expectedInJson(std::string_view what) {
  return tl::unexpected{JsonFault{{}, "expected " + std::string{what}}};
}

/// A fault of what stands under a name or at a place.
inline tl::unexpected<JsonFault> within(std::string_view name, JsonFault fault) {
  fault.path = std::string{name} + (fault.path.empty() || fault.path.front() == '[' ? "" : ".") + fault.path;
  return tl::unexpected{std::move(fault)};
}

/// A number, whole or not.
inline std::optional<double> numberOf(const JSONValue& json) {
  if (const auto* whole = std::get_if<std::int64_t>(&json.content)) return static_cast<double>(*whole);
  const auto* number = std::get_if<double>(&json.content);
  return number ? std::optional{*number} : std::nullopt;
}

template <class Value>
JsonRead<Value> readJson(const JSONValue& json);

template <std::integral Value>
JsonRead<Value> readWhole(const JSONValue& json) {
  const auto* whole = std::get_if<std::int64_t>(&json.content);
  if (whole && std::in_range<Value>(*whole)) return static_cast<Value>(*whole);
  using Limits = std::numeric_limits<Value>;
  constexpr std::int64_t mostOfAll = std::numeric_limits<std::int64_t>::max();
  constexpr auto most =
      std::in_range<std::int64_t>(Limits::max()) ? static_cast<std::int64_t>(Limits::max()) : mostOfAll;
  return expectedInJson("a whole number from " + std::to_string(Limits::min()) + " to " + std::to_string(most));
}

inline JsonRead<Date> readDate(const JSONValue& json) {
  const auto number = numberOf(json);
  if (!number) return expectedInJson("a number");
  const Date date = dateSince1970(*number);
  if (!isRepresentable(date)) return expectedInJson("seconds since 1970 of a date in the years 1 to 9999");
  return date;
}

template <class Enumeration>
JsonRead<Enumeration> readEnumerator(const JSONValue& json) {
  std::string all;
  for (std::size_t value = 0; value < enumeratorNames<Enumeration>.size(); ++value) {
    const std::string_view name = enumeratorNames<Enumeration>[value];
    if (name.empty()) continue;
    if (json.text() && *json.text() == name) return static_cast<Enumeration>(value);
    all += (all.empty() ? "\"" : ", \"") + std::string{name} + '"';
  }
  return expectedInJson("one of " + all);
}

/// A field of an object, also where it is null.
inline const JSONValue* fieldOf(const JSONValue& json, std::string_view name) {
  const auto found = std::ranges::find(*json.object(), name, &JSONValue::Member::name);
  return found == json.object()->end() ? nullptr : &found->value;
}

template <class Listed>
JsonRead<Listed> readRecord(const JSONValue& json) {
  if (!json.object()) return expectedInJson("an object");
  Listed record{};
  std::optional<JsonFault> fault;
  std::size_t count = 0;
  fields(record, [&]<class Field>(std::string_view name, Field& field) {
    ++count;
    if (fault) return;
    const JSONValue* const found = fieldOf(json, name);
    if (!found) {
      fault = within(name, {{}, "expected this field"}).value();
    } else if (auto read = readJson<Field>(*found)) {
      field = *std::move(read);
    } else {
      fault = within(name, std::move(read.error())).value();
    }
  });
  if (fault) return tl::unexpected{*std::move(fault)};
  if (json.object()->size() != count)
    return expectedInJson("each field of " + std::string{typeName<Listed>()} + " once, and no other");
  return record;
}

template <class Pair>
JsonRead<Pair> readPair(const JSONValue& json) {
  const auto* const two = json.array();
  if (!two || two->size() != 2) return expectedInJson("a list of two");
  auto first = readJson<std::remove_const_t<typename Pair::first_type>>((*two)[0]);
  if (!first) return within("[0]", std::move(first.error()));
  auto second = readJson<typename Pair::second_type>((*two)[1]);
  if (!second) return within("[1]", std::move(second.error()));
  return Pair{*std::move(first), *std::move(second)};
}

/// Lists, and maps as lists of pairs.
template <class List>
JsonRead<List> readList(const JSONValue& json) {
  if (!json.array()) return expectedInJson("a list");
  std::vector<std::ranges::range_value_t<List>> elements;
  elements.reserve(json.array()->size());
  for (const JSONValue& element : *json.array()) {
    auto read = readJson<std::ranges::range_value_t<List>>(element);
    if (!read) return within('[' + std::to_string(elements.size()) + ']', std::move(read.error()));
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

inline NamedCase namedCase(const JSONValue& json) {
  if (const std::string* name = json.text()) return {*name};
  const auto* const members = json.object();
  if (!members || members->size() != 1) return {};
  return {members->front().name, &members->front().value};
}

template <class Case>
JsonRead<Case> readCase(const JSONValue* json) {
  if constexpr (std::is_empty_v<Case>) {
    if (!json) return Case{};
    return expectedInJson("this name alone");
  } else {
    if (!json) return expectedInJson("an object with a value of this name");
    if constexpr (hasOneValue<Case>) {
      auto read = readJson<PayloadOf<Case>>(*json);
      if (!read) return tl::unexpected{std::move(read.error())};
      return Case{*std::move(read)};
    } else {
      return readJson<Case>(*json);
    }
  }
}

template <class Union, class... Case>
JsonRead<Union> readCases(const JSONValue& json, JsonCases<Case...>) {
  const NamedCase given = namedCase(json);
  if (given.name.empty()) return expectedInJson("the name of an action, alone or with its value");
  std::optional<JsonRead<Union>> result;
  [[maybe_unused]] const auto readIfNamed = [&]<class Named>(std::type_identity<Named>) {
    if (given.name != caseName<Named>) return false;
    auto read = readCase<Named>(given.value);
    if (read)
      result.emplace(*std::move(read));
    else
      result.emplace(within(given.name, std::move(read.error())));
    return true;
  };
  if ((readIfNamed(std::type_identity<Case>{}) || ...)) return *std::move(result);
  return within(quotable(given.name), {{}, "expected an action that a person can take"});
}

template <class Value>
JsonRead<Value> readJson(const JSONValue& json) {
  if constexpr (isOptional<Value>) {
    if (json.isNull()) return Value{};
    auto read = readJson<typename Value::value_type>(json);
    if (!read) return tl::unexpected{std::move(read.error())};
    return Value{*std::move(read)};
  } else if constexpr (std::same_as<Value, bool>) {
    const auto* const flag = std::get_if<bool>(&json.content);
    if (!flag) return expectedInJson("true or false");
    return *flag;
  } else if constexpr (std::floating_point<Value>) {
    const auto number = numberOf(json);
    if (!number) return expectedInJson("a number");
    return *number;
  } else if constexpr (std::integral<Value>) {
    return readWhole<Value>(json);
  } else if constexpr (std::is_enum_v<Value>) {
    return readEnumerator<Value>(json);
  } else if constexpr (std::same_as<Value, std::string>) {
    if (!json.text()) return expectedInJson("a text");
    return *json.text();
  } else if constexpr (std::same_as<Value, Date>) {
    return readDate(json);
  } else if constexpr (std::same_as<Value, UUID>) {
    const auto id = json.text() ? parseUUID(*json.text()) : std::nullopt;
    if (!id) return expectedInJson("a UUID");
    return *id;
  } else if constexpr (isPair<Value>) {
    return readPair<Value>(json);
  } else if constexpr (Record<Value>) {
    return readRecord<Value>(json);
  } else if constexpr (CaseUnion<Value>) {
    return readCases<Value>(json, ListedCasesOf<Value>{});
  } else {
    return readList<Value>(json);
  }
}

}  // namespace mivo::host
