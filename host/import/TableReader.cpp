// SPDX-License-Identifier: MIT
#include "host/import/TableReader.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "host/history/Header.h"
#include "host/import/ReadRows.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::host {
namespace {

constexpr int mostLinesAbove = 50;

std::optional<ImportColumns> columnsIn(std::string_view line, char separator) {
  const auto fields = splitLine(line, separator);
  return readColumns(std::vector<std::string_view>{fields.begin(), fields.end()});
}

void setUnit(ImportColumns& columns, std::optional<WeightUnit> unit) {
  for (ImportColumn& column : columns.known)
    if (column.role == Role::weight && !column.unit) column.unit = unit;
}

}  // namespace

std::optional<TextLine> nextLine(std::string_view text, std::size_t& offset) {
  if (offset >= text.size()) return std::nullopt;
  const std::size_t begin = offset;
  const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
  offset = std::min(end + 1, text.size());
  if (text.substr(end).starts_with("\r\n")) ++offset;
  return TextLine{text.substr(begin, end - begin), begin};
}

std::optional<WeightUnit> unitInComment(std::string_view line) {
  if (!line.starts_with('#')) return std::nullopt;
  const std::string plain = plainHeader(line.substr(1));
  for (const std::string_view name : {"units:", "unit:", "units=", "unit="})
    if (plain.starts_with(name)) return weightUnitNamed(std::string_view{plain}.substr(name.size()));
  return std::nullopt;
}

std::optional<FoundTable> findTable(std::string_view beginning) {
  std::optional<WeightUnit> unit;
  std::size_t offset = 0;
  for (int line = 1; line <= mostLinesAbove; ++line) {
    const auto next = nextLine(beginning, offset);
    if (!next) return std::nullopt;
    if (const auto named = unitInComment(next->text)) unit = named;
    for (const char separator : {',', ';', '\t'}) {
      auto columns = columnsIn(next->text, separator);
      if (!columns) continue;
      setUnit(*columns, unit);
      return FoundTable{std::move(*columns), separator, next->offset, line};
    }
  }
  return std::nullopt;
}

TableReader::TableReader(FoundTable found, const std::string& name)
    : file{.name = name, .kind = found.columns.areWeights ? ImportKind::weightTable : ImportKind::fastTable},
      progress{std::make_unique<Progress>(RecordRows{std::move(found.columns)})},
      csv{found.separator, name,
          [&held = *progress, name](const CsvRow& row) -> std::optional<BadRecord> {
            if (!std::exchange(held.hasHeader, true)) return std::nullopt;
            if (row.fields.front().starts_with('#')) return std::nullopt;
            if (held.rows.add(row.line, row.fields)) return std::nullopt;
            return BadRecord{.file = name, .line = row.line, .reason = "expected fewer records"};
          },
          found.line} {
  file.notes.linesPassedOver = found.line - 1;
}

std::optional<ImportFault> TableReader::feed(std::string_view piece) {
  auto bad = csv.feed(piece);
  return bad ? std::optional{ImportFault{std::move(*bad)}} : std::nullopt;
}

tl::expected<ImportedFile, ImportFault> TableReader::finish(const ImportSettings& settings, const UUIDGenerator& ids) {
  if (auto bad = csv.finish()) return tl::unexpected{ImportFault{std::move(*bad)}};
  if (auto fault = readRows(progress->rows, settings, ids, file)) return tl::unexpected{std::move(*fault)};
  return std::move(file);
}

}  // namespace mivo::host
