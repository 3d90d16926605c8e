// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "host/text/BadRecord.h"
#include "mivo/platform/JSONValue.h"

namespace mivo::web {

/// Reads fields of one JSON object into their places, up to the first that is wrong. The object must outlive it.
class FieldReader {
 public:
  FieldReader(const JSONValue& read, std::string path) : object{read}, prefix{std::move(path)} {}

  void text(const char* key, std::string_view expected, auto&& take) {
    read(key, expected, [&](const JSONValue& value) { return value.text() && take(*value.text()); });
  }

  void whole(const char* key, std::string_view expected, std::int64_t low, std::int64_t high, auto&& take) {
    read(key, expected, [&](const JSONValue& value) {
      const auto number = value.whole();
      const bool isGood = number && *number >= low && *number <= high;
      if (isGood) take(*number);
      return isGood;
    });
  }

  void flag(const char* key, bool& into) {
    read(key, "expected true or false", [&](const JSONValue& value) {
      const bool* const given = std::get_if<bool>(&value.content);
      if (given) into = *given;
      return given != nullptr;
    });
  }

  /// `take` says whether it could use the value.
  void read(const char* key, std::string_view expected, auto&& take) {
    known.push_back(key);
    const JSONValue* const value = object.member(key);
    if (!fault.empty() || !value || take(*value)) return;
    fault = prefix + key + ": " + std::string{expected};
    if (value->text()) fault += ", found \"" + host::quotable(*value->text()) + '"';
  }

  /// What is wrong, if anything; to be asked at the end.
  std::string sentence() const {
    if (!fault.empty()) return fault;
    for (const auto& [name, value] : *object.object())
      if (std::ranges::find(known, name) == known.end())
        return prefix + host::quotable(name) + ": there is no such option";
    return {};
  }

 private:
  const JSONValue& object;
  std::string prefix, fault;
  std::vector<std::string_view> known;
};

}  // namespace mivo::web
