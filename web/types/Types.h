// SPDX-License-Identifier: MIT
#pragma once
#include <map>
#include <string>
#include <string_view>
#include <typeindex>
#include <utility>
#include <vector>

#include "host/json/RecordJson.h"
#include "mivo/store/Action.h"
#include "mivo/store/Names.h"

namespace mivo::web {

/// "StatisticsFeatureAction": all parts of a type's name but the namespaces.
template <class Named>
std::string fullName() {
  const std::string_view pretty = __PRETTY_FUNCTION__;
  std::string_view rest = pretty.substr(pretty.find("Named = ") + 8);
  rest = rest.substr(0, rest.find_first_of(";]"));
  std::string name;
  for (bool isLast = false; !isLast;) {
    const auto colon = rest.find("::");
    isLast = colon == std::string_view::npos;
    const std::string_view part = rest.substr(0, colon);
    if (part != "mivo" && part != "host" && part != "drawing") name += part;
    if (!isLast) rest.remove_prefix(colon + 2);
  }
  return name;
}

/// Unions that have no name of their own.
template <class Union>
inline constexpr bool isPlain = false;
template <class... Case>
inline constexpr bool isPlain<std::variant<Case...>> = true;
template <class Child>
inline constexpr bool isPlain<PresentationAction<Child>> = true;
template <auto... members>
inline constexpr bool isPlain<Binding<members...>> = true;

/// How the values of an enumeration are written; a specialisation where that is not by their own names.
template <class Enumeration>
struct EnumeratorTexts {
  static const auto& all() { return enumeratorNames<Enumeration>; }
};

/// A record whose fields are looked at; a specialisation where one cannot be made of nothing.
template <class Listed>
Listed blank() {
  return {};
}

/// Gathers what records are in TypeScript, as `host/json` writes them.
class Types {
 public:
  /// How a date is written.
  explicit Types(std::string nameOfDate) : dateName(std::move(nameOfDate)) {}

  /// The name of a type, which is written where it was not yet.
  template <class Field>
  std::string nameOf();

  void write(std::ostream& out) const {
    for (const auto& [name, declared] : declarations) out << '\n' << declared.text;
  }

  bool hasClash = false;  ///< two types of one name

 private:
  template <class Named>
  std::string declared(const std::string& text) {
    const std::string name = fullName<Named>();
    const auto [place, isNew] = declarations.try_emplace(name, Declaration{typeid(Named), {}});
    if (place->second.type != std::type_index{typeid(Named)}) hasClash = true;
    if (isNew) place->second.text = text;
    return name;
  }
  template <class Listed>
  std::string membersOf(std::string_view before, std::string_view after) {
    std::string all;
    const Listed record = blank<Listed>();
    host::visitJsonFields(record, [&]<class Field>(std::string_view name, const Field&) {
      all += std::string{before} + "readonly " + std::string{name} + ": " + nameOf<Field>() + ';' + std::string{after};
    });
    return all;
  }
  template <class Enumeration>
  static std::string enumerators();
  template <class Case>
  std::string caseOf();
  template <class... Case>
  std::string casesOf(std::string_view separator, host::JsonCases<Case...>);

  struct Declaration {
    std::type_index type;
    std::string text;
  };
  std::string dateName;
  std::map<std::string, Declaration> declarations;
};

template <class Enumeration>
std::string Types::enumerators() {
  std::string all;
  for (const std::string_view name : EnumeratorTexts<Enumeration>::all())
    if (!name.empty()) all += (all.empty() ? "\"" : " | \"") + std::string{name} + '"';
  return all;
}

template <class Case>
std::string Types::caseOf() {
  const std::string name{host::caseName<Case>};
  if constexpr (std::is_empty_v<Case>)
    return '"' + name + '"';
  else if constexpr (host::hasOneValue<Case>)
    return "{ readonly " + name + ": " + nameOf<PayloadOf<Case>>() + " }";
  else if (fullName<Case>().ends_with("Cases" + name))  // a record for this case alone
    return "{ readonly " + name + ": {" + membersOf<Case>(" ", "") + " } }";
  else
    return "{ readonly " + name + ": " + nameOf<Case>() + " }";
}

template <class... Case>
std::string Types::casesOf(std::string_view separator, host::JsonCases<Case...>) {
  std::string all;
  for (const std::string& one : std::vector<std::string>{caseOf<Case>()...})
    all += std::string{all.empty() ? "" : separator} + one;
  return all.empty() ? "never" : all;
}

template <class Field>
std::string Types::nameOf() {
  if constexpr (isObserved<Field>) {
    return nameOf<std::remove_cvref_t<decltype(std::declval<const Field&>().value())>>();
  } else if constexpr (isOptional<Field>) {
    return nameOf<typename Field::value_type>() + " | null";
  } else if constexpr (std::same_as<Field, bool>) {
    return "boolean";
  } else if constexpr (std::is_arithmetic_v<Field>) {
    return "number";
  } else if constexpr (std::same_as<Field, Date>) {
    return dateName;
  } else if constexpr (std::convertible_to<Field, std::string_view>) {
    return "string";
  } else if constexpr (std::same_as<Field, UUID>) {
    return "UUID";
  } else if constexpr (std::is_enum_v<Field>) {
    return declared<Field>("export type " + fullName<Field>() + " = " + enumerators<Field>() + ";\n");
  } else if constexpr (isPair<Field>) {
    return "readonly [" + nameOf<std::remove_const_t<typename Field::first_type>>() + ", " +
           nameOf<typename Field::second_type>() + ']';
  } else if constexpr (host::JsonRecord<Field>) {
    const std::string members = membersOf<Field>("  ", "\n");
    return declared<Field>("export interface " + fullName<Field>() + " {\n" + members + "}\n");
  } else if constexpr (CaseUnion<Field>) {
    if constexpr (isPlain<Field>)
      return casesOf(" | ", host::ListedCasesOf<Field>{});
    else
      return declared<Field>("export type " + fullName<Field>() + " =\n  | " +
                             casesOf("\n  | ", host::ListedCasesOf<Field>{}) + ";\n");
  } else {
    return "readonly (" + nameOf<std::ranges::range_value_t<Field>>() + ")[]";
  }
}

}  // namespace mivo::web
