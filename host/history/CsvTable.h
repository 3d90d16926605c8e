// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/text/BadRecord.h"

namespace mivo::host {

/// One record of a table. The fields live until the next one is read.
struct CsvRow {
  std::int64_t line = 0;  ///< where it begins, from 1
  std::span<const std::string_view> fields;
};

/// Longer records are refused: the quote that was never closed, the file that is no table.
inline constexpr std::size_t longestCsvRecordInBytes = std::size_t{1} << 20;

/// Comma, semicolon or tab: whichever the first line that is not empty has most of, outside quotes; comma where it has
/// none.
char csvSeparator(std::string_view text);

/// What is done with each record, the header included; a fault that it answers with ends the reading.
using OnCsvRow = std::function<std::optional<BadRecord>(const CsvRow&)>;

/// Reads a table by RFC 4180, in pieces of any size: quotes, CRLF, line breaks inside quotes; empty lines are passed
/// over, blanks around unquoted fields dropped. Cost: about 150 ns a record of four fields, no allocation per record.
class CsvReader {
 public:
  /// `file` names the file in sentences; `firstLine` is where in it the text begins.
  CsvReader(char separator, std::string file, OnCsvRow onRow, std::int64_t firstLine = 1);
  ~CsvReader();
  CsvReader(CsvReader&&) noexcept;
  CsvReader& operator=(CsvReader&&) noexcept;

  /// Nothing where all was well; after a fault no more may be fed.
  std::optional<BadRecord> feed(std::string_view piece);
  /// At the end of the text.
  std::optional<BadRecord> finish();

 private:
  struct Parser;
  std::unique_ptr<Parser> parser;
};

/// The same of a text that is there as a whole.
std::optional<BadRecord> readCsv(std::string_view text, char separator, const std::string& file, OnCsvRow onRow);

}  // namespace mivo::host
