// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "host/history/CsvTable.h"
#include "host/import/Columns.h"
#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/RecordRows.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// A table that begins somewhere in a text.
struct FoundTable {
  ImportColumns columns;
  char separator = ',';
  std::size_t offset = 0;  ///< of the header's line
  std::int64_t line = 1;   ///< of the header
};

/// The first line of a text that is a header, by whichever separator; nothing where none of the first 50 is. A unit
/// that a comment above it names ("#Units: kg") is that of its weights.
std::optional<FoundTable> findTable(std::string_view beginning);

/// Reads a table that was found, from its header on, in pieces.
class TableReader {
 public:
  TableReader(FoundTable found, const std::string& file);

  std::optional<ImportFault> feed(std::string_view piece);
  tl::expected<ImportedFile, ImportFault> finish(const ImportSettings& settings, const UUIDGenerator& ids);

 private:
  struct Progress {
    RecordRows rows;
    bool hasHeader = false;
  };

  ImportedFile file;
  std::unique_ptr<Progress> progress;  // stays where the rows are sent to
  CsvReader csv;
};

/// The lines of a text, one by one.
struct TextLine {
  std::string_view text;
  std::size_t offset = 0;  ///< where it begins
};
std::optional<TextLine> nextLine(std::string_view text, std::size_t& offset);

/// The unit that a line above a table or a log names: "#Units: kg".
std::optional<WeightUnit> unitInComment(std::string_view line);

}  // namespace mivo::host
