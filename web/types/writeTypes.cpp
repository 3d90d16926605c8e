// SPDX-License-Identifier: MIT
// Prints the types of pages, lists and actions in TypeScript, as `Frontend` takes and gives them: a page that reads a
// field that is gone, or sends an action that is none, does not compile.
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <typeindex>
#include <vector>

#include "host/frontend/Pages.h"
#include "host/frontend/PersonActions.h"
#include "mivo/store/Names.h"

namespace mivo::host {
namespace {

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

class Types {
 public:
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
    const Listed record{};
    fields(record, [&]<class Field>(std::string_view name, const Field&) {
      all += std::string{before} + "readonly " + std::string{name} + ": " + nameOf<Field>() + ';' + std::string{after};
    });
    return all;
  }
  template <class Enumeration>
  static std::string enumerators();
  template <class Case>
  std::string caseOf();
  template <class... Case>
  std::string casesOf(std::string_view separator, JsonCases<Case...>);

  struct Declaration {
    std::type_index type;
    std::string text;
  };
  std::map<std::string, Declaration> declarations;
};

template <class Enumeration>
std::string Types::enumerators() {
  std::string all;
  const auto add = [&all](std::string_view name) {
    if (!name.empty()) all += (all.empty() ? "\"" : " | \"") + std::string{name} + '"';
  };
  if constexpr (std::same_as<Enumeration, Screen>)
    for (const Screen screen : allScreens()) add(rawValue(screen));
  else
    for (const std::string_view name : enumeratorNames<Enumeration>) add(name);
  return all;
}

template <class Case>
std::string Types::caseOf() {
  const std::string name{caseName<Case>};
  if constexpr (std::is_empty_v<Case>)
    return '"' + name + '"';
  else if constexpr (hasOneValue<Case>)
    return "{ readonly " + name + ": " + nameOf<PayloadOf<Case>>() + " }";
  else if (fullName<Case>().ends_with("Cases" + name))  // a record for this case alone
    return "{ readonly " + name + ": {" + membersOf<Case>(" ", "") + " } }";
  else
    return "{ readonly " + name + ": " + nameOf<Case>() + " }";
}

template <class... Case>
std::string Types::casesOf(std::string_view separator, JsonCases<Case...>) {
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
    return "Seconds";
  } else if constexpr (std::convertible_to<Field, std::string_view>) {
    return "string";
  } else if constexpr (std::same_as<Field, UUID>) {
    return "UUID";
  } else if constexpr (std::is_enum_v<Field>) {
    return declared<Field>("export type " + fullName<Field>() + " = " + enumerators<Field>() + ";\n");
  } else if constexpr (isPair<Field>) {
    return "readonly [" + nameOf<std::remove_const_t<typename Field::first_type>>() + ", " +
           nameOf<typename Field::second_type>() + ']';
  } else if constexpr (Record<const Field>) {
    const std::string members = membersOf<Field>("  ", "\n");
    return declared<Field>("export interface " + fullName<Field>() + " {\n" + members + "}\n");
  } else if constexpr (CaseUnion<Field>) {
    if constexpr (isPlain<Field>)
      return casesOf(" | ", ListedCasesOf<Field>{});
    else
      return declared<Field>("export type " + fullName<Field>() + " =\n  | " +
                             casesOf("\n  | ", ListedCasesOf<Field>{}) + ";\n");
  } else {
    return "readonly (" + nameOf<std::ranges::range_value_t<Field>>() + ")[]";
  }
}

template <class Table>
std::string tableOf(Types& types, const Table& table, std::string_view name) {
  std::string members;
  const auto add = [&]<template <class> class Entry, class Shown>(const Entry<Shown>& entry) {
    members += "  readonly " + std::string{entry.name} + ": " + types.nameOf<Shown>();
    members += std::same_as<Entry<Shown>, Sheet<Shown>> ? " | null;\n" : ";\n";
  };
  std::apply([&](const auto&... entry) { (add(entry), ...); }, table);
  return "\nexport interface " + std::string{name} + " {\n" + members + "}\n";
}

int writeTypes(std::ostream& out) {
  Types types;
  const std::string shownPages = tableOf(types, pages, "Pages"), shownLists = tableOf(types, lists, "Lists");
  const std::string sent = types.nameOf<AppFeature::Action>(), onPages = types.nameOf<PageAction::Action>();
  out << "// Written from the records of host/frontend; changes here are lost.\n\n"
         "/** Since 1970. */\nexport type Seconds = number;\nexport type UUID = string;\n\n"
      << "/** What a person does. */\nexport type Action = " << sent << " | " << onPages << ";\n"
      << "\n/** Each page by its name; null for a sheet that was not open yet. */" << shownPages
      << "\n/** What the rows of each list are. */" << shownLists;
  types.write(out);
  if (types.hasClash) std::cerr << "writeTypes: two types have the same name\n";
  return types.hasClash || !out.flush() ? 1 : 0;
}

}  // namespace
}  // namespace mivo::host

int main() { return mivo::host::writeTypes(std::cout); }
