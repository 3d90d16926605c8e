// SPDX-License-Identifier: MIT
#include "host/frontend/ActionJson.h"

#include <variant>

#include "host/frontend/ScreenJson.h"

namespace mivo::host {
namespace {

template <class... Case>
bool isOneOf(std::string_view name, JsonCases<Case...>) {
  return ((name == typeName<Case>()) || ...);
}

bool isOfPages(const JSONValue& json) { return isOneOf(namedCase(json).name, ListedCasesOf<PageAction::Action>{}); }

template <class Action>
tl::expected<PersonAction, std::string> readAs(const JSONValue& json) {
  auto read = readJson<Action>(json);
  if (!read) return tl::unexpected{describe(read.error())};
  return PersonAction{*std::move(read)};
}

}  // namespace

tl::expected<PersonAction, std::string> readAction(std::string_view json) {
  const auto document = parseJson(json);
  if (!document) return tl::unexpected{describe(document.error())};
  return isOfPages(*document) ? readAs<PageAction::Action>(*document) : readAs<AppFeature::Action>(*document);
}

std::string writeAction(const PersonAction& action) {
  JsonWriter json{JsonWriter::Reader::page};
  std::visit([&json](const auto& one) { writeJson(json, one); }, action);
  return std::move(json).text();
}

}  // namespace mivo::host
