// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "mivo/model/TimeRange.h"

namespace mivo::cli {

/// One of the values that an option can have. A name that is empty stands for an option that was not given.
template <class Value>
struct Choice {
  std::string_view name;
  Value value;
};

/// The names that can be typed, in their order.
template <class Choices>
std::vector<std::string> namesOf(const Choices& choices) {
  std::vector<std::string> names;
  for (const auto& choice : choices)
    if (!choice.name.empty()) names.emplace_back(choice.name);
  return names;
}

/// "{week,month,year}": the names as the type of an option, where help shows them and completions find them.
std::string typeName(const std::vector<std::string>& names);

/// "week, month or year"
std::string alternatives(const std::vector<std::string>& names);

/// Whether it is json.
inline constexpr std::array<Choice<bool>, 2> formats{{{"text", false}, {"json", true}}};

/// What `--range` means.
inline constexpr std::array<Choice<TimeRange>, 3> ranges{
    {{"week", TimeRange::week}, {"month", TimeRange::month}, {"year", TimeRange::year}}};

/// Adds `--format`, whose value is one of the names of `formats`.
CLI::Option* addFormat(CLI::App& command, std::string& format);

}  // namespace mivo::cli
