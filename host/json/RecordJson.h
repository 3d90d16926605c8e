// SPDX-License-Identifier: MIT
#pragma once

#include <cassert>
#include <concepts>
#include <cstdint>
#include <optional>
#include <ranges>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "host/dates/DateText.h"
#include "host/json/JsonWriter.h"
#include "mivo/model/UUID.h"
#include "mivo/store/Action.h"
#include "mivo/store/Names.h"
#include "mivo/store/Observed.h"
#include "mivo/store/Print.h"

namespace mivo::host {

/// How a record stands in JSON; by default as its list of fields. A specialisation derives from std::true_type and has
/// a `static void visit(const Record&, Visit)` that lists names and values.
template <class Record>
struct JsonFields : std::false_type {};

template <class Value>
concept JsonRecord = Record<const Value> || JsonFields<Value>::value;

template <JsonRecord Listed, class Visit>
void visitJsonFields(const Listed& record, Visit&& visit) {
  if constexpr (JsonFields<Listed>::value)
    JsonFields<Listed>::visit(record, visit);
  else
    fields(record, visit);
}

template <class Value>
concept JsonLeaf =
    std::is_arithmetic_v<Value> || std::is_enum_v<Value> || std::convertible_to<Value, std::string_view> ||
    std::same_as<Value, Date> || std::same_as<Value, UUID>;

inline void writeJson(JsonWriter& json, std::string_view value) { json.string(value); }
inline void writeJson(JsonWriter& json, Date value) {
  if (json.isForPage()) return json.number(secondsSince1970(value));
  Rfc3339 text;
  json.string(text.write(value));
}
inline void writeJson(JsonWriter& json, UUID value) { json.string(text(value)); }

/// The cases of a union that stand in JSON: all of them, unless a specialisation lists those that do.
template <class... Case>
struct JsonCases {
  template <class Candidate>
  static constexpr bool has = (std::same_as<Candidate, Case> || ...);
};
template <class... Case>
JsonCases<Case...> jsonCasesOf(const std::variant<Case...>&);
template <class Union>
struct ListedCases {
  using Type = decltype(jsonCasesOf(std::declval<const Union&>()));
};
template <class Union>
using ListedCasesOf = typename ListedCases<Union>::Type;

/// Records as objects, lists as arrays, enumerators by their names, what is absent as null, an observed field as its
/// value. A record of scalars takes one line, and so does a list of them.
///
/// Of a union, the case that it holds: by its name, `"didGoBack"`; with its one field as the value of that name,
/// `{"didTapStop": 1782907200}`; and with several as `{"didTapStart": {"start": 1782907200, "goalSeconds": 57600}}`.
template <class Value>
void writeJson(JsonWriter& json, const Value& value);

/// The members of an object that is open, for those that have a key or two of their own.
template <JsonRecord Listed>
void writeJsonFields(JsonWriter& json, const Listed& record) {
  visitJsonFields(record, [&](std::string_view name, const auto& field) {
    json.key(name);
    writeJson(json, field);
  });
}

template <JsonRecord Listed>
JsonWriter::Layout layoutOf(const Listed& record) {
  bool isFlat = true;
  visitJsonFields(record, [&]<class Field>(std::string_view, const Field&) { isFlat = isFlat && JsonLeaf<Field>; });
  return isFlat ? JsonWriter::Layout::line : JsonWriter::Layout::spread;
}

/// "didGoBack", or the field that is written.
template <class Case>
inline constexpr std::string_view caseName = typeName<Case>();
template <auto member>
inline constexpr std::string_view caseName<Write<member>> = memberName<member>();

/// Whether it stands as the value of its one field.
template <class Case>
inline constexpr bool hasOneValue = !JsonRecord<Case>;
template <auto member>
inline constexpr bool hasOneValue<Write<member>> = true;

/// Only of a case that is listed (asserted).
template <CaseUnion Union>
void writeJsonCase(JsonWriter& json, const Union& value) {
  std::visit(
      [&json]<class Case>(const Case& active) {
        if constexpr (!ListedCasesOf<Union>::template has<Case>) {
          assert(false && "a case that does not stand in JSON");
        } else if constexpr (std::is_empty_v<Case>) {
          json.string(caseName<Case>);
        } else {
          json.beginObject(JsonWriter::Layout::line);
          json.key(caseName<Case>);
          if constexpr (hasOneValue<Case>)
            writeJson(json, payload(active));
          else
            writeJson(json, active);
          json.endObject();
        }
      },
      value);
}

template <std::ranges::input_range List>
void writeJsonList(JsonWriter& json, const List& list) {
  using Layout = JsonWriter::Layout;
  json.beginArray(JsonLeaf<std::ranges::range_value_t<List>> ? Layout::line : Layout::spread);
  for (const auto& element : list) writeJson(json, element);
  json.endArray();
}

template <class Value>
void writeJson(JsonWriter& json, const Value& value) {
  if constexpr (isObserved<Value>) {
    writeJson(json, value.value());
  } else if constexpr (isOptional<Value>) {
    value ? writeJson(json, *value) : json.null();
  } else if constexpr (std::same_as<Value, bool>) {
    json.boolean(value);
  } else if constexpr (std::floating_point<Value>) {
    json.number(value);
  } else if constexpr (std::integral<Value>) {
    json.number(static_cast<std::int64_t>(value));
  } else if constexpr (std::is_enum_v<Value>) {
    json.string(enumeratorText(value));
  } else if constexpr (std::convertible_to<Value, std::string_view>) {
    json.string(value);
  } else if constexpr (isPair<Value>) {
    json.beginArray(JsonWriter::Layout::line);
    writeJson(json, value.first);
    writeJson(json, value.second);
    json.endArray();
  } else if constexpr (CaseUnion<Value>) {
    writeJsonCase(json, value);
  } else if constexpr (JsonRecord<Value>) {
    json.beginObject(layoutOf(value));
    writeJsonFields(json, value);
    json.endObject();
  } else {
    writeJsonList(json, value);
  }
}

}  // namespace mivo::host
