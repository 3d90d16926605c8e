// SPDX-License-Identifier: MIT
#pragma once

#include <rapidjson/document.h>

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

/// A text as JSON; the document refers to nothing of it.
JsonRead<rapidjson::Document> parseJson(std::string_view text);

inline tl::unexpected<JsonFault> expectedInJson(std::string_view what) {
  return tl::unexpected{JsonFault{{}, "expected " + std::string{what}}};
}

/// A fault of what stands under a name or at a place.
inline tl::unexpected<JsonFault> within(std::string_view name, JsonFault fault) {
  fault.path = std::string{name} + (fault.path.empty() || fault.path.front() == '[' ? "" : ".") + fault.path;
  return tl::unexpected{std::move(fault)};
}

inline std::string_view textOf(const rapidjson::Value& json) { return {json.GetString(), json.GetStringLength()}; }

template <class Value>
JsonRead<Value> readJson(const rapidjson::Value& json);

template <std::integral Value>
JsonRead<Value> readWhole(const rapidjson::Value& json) {
  if (json.IsInt64() && std::in_range<Value>(json.GetInt64())) return static_cast<Value>(json.GetInt64());
  using Limits = std::numeric_limits<Value>;
  constexpr std::int64_t mostOfAll = std::numeric_limits<std::int64_t>::max();
  constexpr auto most =
      std::in_range<std::int64_t>(Limits::max()) ? static_cast<std::int64_t>(Limits::max()) : mostOfAll;
  return expectedInJson("a whole number from " + std::to_string(Limits::min()) + " to " + std::to_string(most));
}

inline JsonRead<Date> readDate(const rapidjson::Value& json) {
  if (!json.IsNumber()) return expectedInJson("a number");
  const Date date = dateSince1970(json.GetDouble());
  if (!isRepresentable(date)) return expectedInJson("seconds since 1970 of a date in the years 1 to 9999");
  return date;
}

template <class Enumeration>
JsonRead<Enumeration> readEnumerator(const rapidjson::Value& json) {
  std::string all;
  for (std::size_t value = 0; value < enumeratorNames<Enumeration>.size(); ++value) {
    const std::string_view name = enumeratorNames<Enumeration>[value];
    if (name.empty()) continue;
    if (json.IsString() && textOf(json) == name) return static_cast<Enumeration>(value);
    all += (all.empty() ? "\"" : ", \"") + std::string{name} + '"';
  }
  return expectedInJson("one of " + all);
}

template <class Listed>
JsonRead<Listed> readRecord(const rapidjson::Value& json) {
  if (!json.IsObject()) return expectedInJson("an object");
  Listed record{};
  std::optional<JsonFault> fault;
  rapidjson::SizeType count = 0;
  fields(record, [&]<class Field>(std::string_view name, Field& field) {
    ++count;
    if (fault) return;
    const auto found = json.FindMember(rapidjson::Value{rapidjson::StringRef(name.data(), name.size())});
    if (found == json.MemberEnd()) {
      fault = within(name, {{}, "expected this field"}).value();
    } else if (auto read = readJson<Field>(found->value)) {
      field = *std::move(read);
    } else {
      fault = within(name, std::move(read.error())).value();
    }
  });
  if (fault) return tl::unexpected{*std::move(fault)};
  if (json.MemberCount() != count)
    return expectedInJson("each field of " + std::string{typeName<Listed>()} + " once, and no other");
  return record;
}

template <class Pair>
JsonRead<Pair> readPair(const rapidjson::Value& json) {
  if (!json.IsArray() || json.Size() != 2) return expectedInJson("a list of two");
  auto first = readJson<std::remove_const_t<typename Pair::first_type>>(json[0]);
  if (!first) return within("[0]", std::move(first.error()));
  auto second = readJson<typename Pair::second_type>(json[1]);
  if (!second) return within("[1]", std::move(second.error()));
  return Pair{*std::move(first), *std::move(second)};
}

/// Lists, and maps as lists of pairs.
template <class List>
JsonRead<List> readList(const rapidjson::Value& json) {
  if (!json.IsArray()) return expectedInJson("a list");
  std::vector<std::ranges::range_value_t<List>> elements;
  elements.reserve(json.Size());
  for (const auto& element : json.GetArray()) {
    auto read = readJson<std::ranges::range_value_t<List>>(element);
    if (!read) return within('[' + std::to_string(elements.size()) + ']', std::move(read.error()));
    elements.push_back(*std::move(read));
  }
  if constexpr (std::constructible_from<List, std::vector<std::ranges::range_value_t<List>>>)
    return List{std::move(elements)};
  else
    return List{elements.begin(), elements.end()};
}

template <class Case>
JsonRead<Case> readCase(const rapidjson::Value* json) {
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
JsonRead<Union> readCases(const rapidjson::Value& json, JsonCases<Case...>) {
  const bool isPair = json.IsObject() && json.MemberCount() == 1;
  if (!json.IsString() && !isPair) return expectedInJson("the name of an action, alone or with its value");
  const std::string_view name = textOf(isPair ? json.MemberBegin()->name : json);
  std::optional<JsonRead<Union>> result;
  [[maybe_unused]] const auto readIfNamed = [&]<class Named>(std::type_identity<Named>) {
    if (name != caseName<Named>) return false;
    auto read = readCase<Named>(isPair ? &json.MemberBegin()->value : nullptr);
    if (read)
      result.emplace(*std::move(read));
    else
      result.emplace(within(name, std::move(read.error())));
    return true;
  };
  if ((readIfNamed(std::type_identity<Case>{}) || ...)) return *std::move(result);
  return within(quotable(name), {{}, "expected an action that a person can take"});
}

template <class Value>
JsonRead<Value> readJson(const rapidjson::Value& json) {
  if constexpr (isOptional<Value>) {
    if (json.IsNull()) return Value{};
    auto read = readJson<typename Value::value_type>(json);
    if (!read) return tl::unexpected{std::move(read.error())};
    return Value{*std::move(read)};
  } else if constexpr (std::same_as<Value, bool>) {
    if (!json.IsBool()) return expectedInJson("true or false");
    return json.GetBool();
  } else if constexpr (std::floating_point<Value>) {
    if (!json.IsNumber()) return expectedInJson("a number");
    return json.GetDouble();
  } else if constexpr (std::integral<Value>) {
    return readWhole<Value>(json);
  } else if constexpr (std::is_enum_v<Value>) {
    return readEnumerator<Value>(json);
  } else if constexpr (std::same_as<Value, std::string>) {
    if (!json.IsString()) return expectedInJson("a text");
    return std::string{textOf(json)};
  } else if constexpr (std::same_as<Value, Date>) {
    return readDate(json);
  } else if constexpr (std::same_as<Value, UUID>) {
    const auto id = json.IsString() ? parseUUID(textOf(json)) : std::nullopt;
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
