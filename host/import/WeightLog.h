// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/RecordRows.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Whether a text, from its beginning, is a log of weights: its first line that is no comment has a date and a number
/// behind it.
bool isWeightLog(std::string_view beginning);

/// Reads a weight a line, without a header, in pieces:
///
///     # morning, before tea
///     2025-01-30T07:05:00.000 81.4
///     31.01.2025 07:10;81.2;22.5;
///
/// A blank, a tab, a comma or a semicolon behind the date; what stands behind the weight is passed over. The unit is
/// that of the line, or of a comment ("#Units: kg"). Lines by semicolons that hold more than a weight are a scale's, in
/// kilograms.
class WeightLog {
 public:
  explicit WeightLog(const std::string& file);

  std::optional<ImportFault> feed(std::string_view piece);
  tl::expected<ImportedFile, ImportFault> finish(const ImportSettings& settings, const UUIDGenerator& ids);

 private:
  bool take(std::string_view line);

  ImportedFile file;
  RecordRows rows;
  std::string rest;  // of a line that has not ended
  std::int64_t line = 0;
  bool lastWasReturn = false;
  std::optional<WeightUnit> unit;
};

}  // namespace mivo::host
