// SPDX-License-Identifier: MIT
#include "web/adapters/StoredUserDefaults.h"

#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>

#include "mivo/platform/IssueReporting.h"
#include "web/adapters/StoredFiles.h"

namespace mivo::web {
namespace {

using nlohmann::json;

/// Nothing where it is not an object.
std::optional<json> read(std::string_view content) {
  json parsed = json::parse(content, nullptr, /*allow_exceptions=*/false);
  return parsed.is_object() ? std::optional{std::move(parsed)} : std::nullopt;
}

std::optional<UserDefaults::Value> valueOf(const json& member) {
  if (member.is_boolean()) return member.get<bool>();
  if (member.is_string()) return member.get<std::string>();
  if (member.is_number_integer()) return member.get<std::int64_t>();
  if (member.is_number()) return member.get<double>();
  return std::nullopt;
}

}  // namespace

struct StoredUserDefaults::Members {
  json all = json::object();
};

StoredUserDefaults::StoredUserDefaults(std::unique_ptr<Members> known) : members{std::move(known)} {}

StoredUserDefaults::StoredUserDefaults(std::string name, std::function<void(const std::string& why)> didFail)
    : file{std::move(name)}, tell{std::move(didFail)}, members{std::make_unique<Members>()} {
  const auto content = readStored(file);
  if (!content) return;
  if (auto known = read(*content)) {
    members->all = std::move(*known);
    return;
  }
  replaceStored(file + ".damaged", *content);
  reportIssue(file + ": these settings are damaged, so the defaults are used; the file is kept as " + file +
              ".damaged");
}

StoredUserDefaults::~StoredUserDefaults() = default;

StoredUserDefaults StoredUserDefaults::of(std::string_view content) {
  return StoredUserDefaults{std::make_unique<Members>(Members{read(content).value_or(json::object())})};
}

std::optional<UserDefaults::Value> StoredUserDefaults::value(std::string_view key) const {
  const auto member = members->all.find(key);
  return member == members->all.end() ? std::nullopt : valueOf(*member);
}

void StoredUserDefaults::setValue(std::string_view key, std::optional<Value> value) const {
  const double* const number = value ? std::get_if<double>(&*value) : nullptr;
  if (number && !std::isfinite(*number))
    return reportIssue(std::string{key} + ": a number that is not finite is not saved");
  if (!isFailing && this->value(key) == value) return;
  if (value)
    std::visit([&](const auto& held) { members->all[std::string{key}] = held; }, *value);
  else
    members->all.erase(std::string{key});
  try {
    replaceStored(file, members->all.dump(-1, ' ', false, json::error_handler_t::replace));
    isFailing = false;
  } catch (const std::system_error& error) {
    reportIssue(error.what());
    if (!std::exchange(isFailing, true) && tell) tell(error.code().message());
  }
}

}  // namespace mivo::web
