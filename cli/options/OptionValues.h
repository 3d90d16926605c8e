// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/icu/UserLocale.h"
#include "adapters/time/TimeZone.h"
#include "mivo/model/Date.h"

namespace mivo::cli {

/// What an option means, or a sentence that names the option, what was expected and what was found.
template <class Value>
using Read = tl::expected<Value, std::string>;

/// --range: expected week, month or year, found "fortnight"
tl::unexpected<std::string> wrong(std::string_view option, std::string_view expected, std::string_view found);
tl::unexpected<std::string> wrong(std::string_view option, const std::string& sentence);

template <class Value>
struct Choice {
  std::string_view name;
  Value value;
};

template <class Value>
Read<Value> readChoice(std::string_view option, std::string_view expected, std::span<const Choice<Value>> choices,
                       std::string_view text) {
  for (const auto& [name, value] : choices)
    if (name == text) return value;
  return wrong(option, expected, text);
}

/// `--format`: whether it is json.
Read<bool> readFormat(std::string_view text);

/// A whole number from `low` to `high`.
Read<std::int64_t> readNumber(std::string_view option, std::string_view expected, std::string_view text,
                              std::int64_t low, std::int64_t high);

/// `--time-zone`; the system's where it was not given.
Read<std::shared_ptr<const adapters::TimeZone>> readTimeZone(const std::string& name);

/// `--locale`; the system's where it was not given.
Read<adapters::UserLocale> readLocale(const std::string& tag);

/// A date and time of the years 1 to 9999; one without offset is in `zone`.
Read<Date> readDate(std::string_view option, std::string_view text, const adapters::TimeZone& zone);

}  // namespace mivo::cli
