// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "mivo/store/Observed.h"
#include "mivo/store/Print.h"

namespace mivo::tests {

template <class Value>
void addDifferences(const std::string& path, const Value& expected, const Value& found, std::string& lines);

template <Record Listed>
void addFieldDifferences(const std::string& path, const Listed& expected, const Listed& found, std::string& lines) {
  std::vector<const void*> others;  // the same fields in the same order, so each has the type of its twin
  fields(found, [&others](std::string_view, const auto& field) { others.push_back(&field); });
  std::size_t index = 0;
  fields(expected, [&]<class Field>(std::string_view name, const Field& field) {
    const auto separator = path.empty() ? std::string{} : path + '.';
    addDifferences(separator + std::string{name}, field, *static_cast<const Field*>(others[index++]), lines);
  });
}

template <class Value>
void addDifferences(const std::string& path, const Value& expected, const Value& found, std::string& lines) {
  if (expected == found) return;
  if constexpr (Record<const Value>)
    addFieldDifferences(path, expected, found, lines);
  else
    lines += "  " + path + ": expected " + printed(expected) + ", found " + printed(found) + '\n';
}

/// The fields that differ, each on a line: "  stats.totalFasts: expected 3, found 4". Empty for equal states.
template <class State>
std::string differences(const State& expected, const State& found) {
  std::string lines;
  addDifferences({}, expected, found, lines);
  return lines;
}

}  // namespace mivo::tests
