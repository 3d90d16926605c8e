// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cli/usage/Choices.h"
#include "host/dates/WrittenDate.h"
#include "host/import/ImportedFile.h"
#include "host/options/PlaceOptions.h"
#include "mivo/platform/Formatters.h"

namespace mivo::cli {

using host::Read, host::readDate, host::readLocale, host::readTimeZone, host::wrong;

template <class Value, std::size_t count>
Read<Value> readChoice(std::string_view option, const std::array<Choice<Value>, count>& choices,
                       std::string_view text) {
  for (const auto& [name, value] : choices)
    if (name == text) return value;
  return wrong(option, "expected " + alternatives(namesOf(choices)), text);
}

/// `--format`: whether it is json.
Read<bool> readFormat(std::string_view text);

/// Adds `--date-order` and `--weight-unit`: what files leave open that people bring along.
CLI::Option* addDateOrder(CLI::App& command, std::string& order, const std::string& description);
CLI::Option* addWeightUnit(CLI::App& command, std::string& unit, const std::string& description);
/// What they say; nothing where they were not given.
Read<std::optional<host::DateOrder>> readDateOrder(std::string_view text);
Read<std::optional<WeightUnit>> readWeightUnit(std::string_view text);

/// The option that answers what a file leaves open: "--weight-unit kg, lb or st says it". Nothing where it asks
/// nothing.
std::string answeringOption(host::ImportFault::Asks asks);

/// A date as it was typed, or a sentence; see `host::readTypedDate`.
Read<Date> readTypedDate(std::string_view option, std::string_view text, const adapters::UserLocale& locale,
                         const adapters::TimeZone& zone, Date now, std::optional<Date> after);

/// A whole number from `low` to `high`.
Read<std::int64_t> readNumber(std::string_view option, std::string_view expected, std::string_view text,
                              std::int64_t low, std::int64_t high);

}  // namespace mivo::cli
