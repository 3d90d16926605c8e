// SPDX-License-Identifier: MIT
// Prints the types of pages, lists and actions in TypeScript, as `Frontend` takes and gives them: a page that reads a
// field that is gone, or sends an action that is none, does not compile.
#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>
#include <tuple>

#include "host/frontend/Pages.h"
#include "host/frontend/PersonActions.h"
#include "web/types/Types.h"

namespace mivo::web {

template <>
struct EnumeratorTexts<host::Screen> {
  static auto all() {
    std::array<std::string_view, host::screenCount> texts;
    std::ranges::transform(host::allScreens(), texts.begin(), [](host::Screen screen) { return rawValue(screen); });
    return texts;
  }
};

namespace {

using namespace host;

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
  Types types{"Seconds"};
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
}  // namespace mivo::web

int main() { return mivo::web::writeTypes(std::cout); }
