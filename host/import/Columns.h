// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "mivo/platform/Formatters.h"

namespace mivo::host {

/// What stands in a column.
enum class Role {
  start,
  startDate,
  startTime,
  end,
  endDate,
  endTime,
  when,  ///< date and time of a weighing
  date,
  time,
  length,
  goal,
  note,
  weight,
  weightUnit,
  utcOffset,  ///< beside dates that are in UTC
};

struct ImportColumn {
  Role role;
  std::size_t index = 0;  ///< in the rows of the file
  std::string name = {};  ///< as the file spells it
  std::optional<WeightUnit> unit = {};
  std::optional<double> secondsPerUnit = {};  ///< of a length or a goal
};

/// The columns of a table, as far as they are known.
struct ImportColumns {
  bool areWeights = false;  ///< fasts otherwise
  std::vector<ImportColumn> known = {};
  std::vector<std::string> unused = {};
  std::size_t fieldCount = 0;
  std::string list = {};  ///< that the rows are the objects of, where a refusal is to name the way to them
  bool hasPaths = false;

  /// The place among `known` of the first column with a role.
  std::optional<std::size_t> place(Role role) const;
};

/// The columns of a header; nothing where it is none, because it names no date beside a weight, nor a start beside an
/// end or a length. Case, blanks, underscores and hyphens do not matter, brackets behind a name explain it, and so does
/// a unit at its end: "Weight (in lbs)", "duration_seconds". A table with a weight is one of weights, whatever else it
/// has.
std::optional<ImportColumns> readColumns(std::span<const std::string_view> header);

/// The fields of a line, without quotes and blanks around them; by commas, semicolons or tabs.
std::vector<std::string> splitLine(std::string_view line, char separator);

}  // namespace mivo::host
