// SPDX-License-Identifier: MIT
#include "host/import/WeightLog.h"

#include <algorithm>
#include <array>
#include <utility>
#include <variant>

#include "host/history/CsvTable.h"
#include "host/import/ReadRows.h"
#include "host/import/TableReader.h"
#include "mivo/weights/WeightText.h"

namespace mivo::host {
namespace {

struct LogLine {
  std::string_view when, weight;
  std::string_view next = {};  ///< the field behind the weight, where commas separate them
  bool isOfScale = false;
};

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t\r") + 1);
}

bool isWeight(std::string_view text) { return std::holds_alternative<double>(readWeight(text, WeightUnit::kilograms)); }

/// The weight at the front of a text: all of it up to the separator, or the first word before a blank.
std::string_view weightIn(std::string_view text, char separator) {
  if (separator != ' ') text = text.substr(0, text.find(separator));
  text = trimmed(text.substr(0, text.find_first_of("\t;#")));
  return isWeight(text) ? text : text.substr(0, text.find(' '));
}

std::string_view fieldBehind(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return {};
  text.remove_prefix(comma + 1);
  return trimmed(text.substr(0, text.find(',')));
}

/// Cut where the longest beginning is a date; without a date the line as a whole stands for one.
LogLine cut(std::string_view line) {
  constexpr std::size_t longestDate = 48;
  for (std::size_t end = std::min(line.size(), longestDate); end-- > 0;) {
    const char separator = line[end];
    if (separator != ' ' && separator != '\t' && separator != ',' && separator != ';') continue;
    const std::string_view when = trimmed(line.substr(0, end));
    if (when.empty() || !readWrittenDate(when)) continue;
    const std::string_view rest = trimmed(line.substr(end + 1));
    const std::string_view weight = weightIn(rest, separator);
    const bool isOfScale = separator == ';' && rest.find(';') != std::string_view::npos;
    return {when, weight, separator == ',' ? fieldBehind(rest) : std::string_view{}, isOfScale};
  }
  return {.when = line, .weight = {}};
}

ImportColumns columnsOfLog() {
  ImportColumns columns{.areWeights = true, .fieldCount = 2};
  columns.known = {{.role = Role::when, .index = 0, .name = "date"},
                   {.role = Role::weight, .index = 1, .name = "weight"}};
  columns.known.push_back({.role = Role::weightUnit, .index = 3, .name = "unit"});
  return columns;
}

}  // namespace

bool isWeightLog(std::string_view beginning) {
  std::size_t offset = 0;
  while (const auto line = nextLine(beginning, offset)) {
    const std::string_view text = trimmed(line->text);
    if (text.empty() || text.starts_with('#')) continue;
    return isWeight(cut(text).weight);
  }
  return false;
}

WeightLog::WeightLog(const std::string& name)
    : file{.name = name, .kind = ImportKind::weightLog}, rows{columnsOfLog()} {}

std::optional<ImportFault> WeightLog::feed(std::string_view piece) {
  while (!piece.empty()) {
    if (std::exchange(lastWasReturn, false) && piece.front() == '\n') {
      piece.remove_prefix(1);
      continue;
    }
    const std::size_t end = piece.find_first_of("\r\n");
    rest += piece.substr(0, end);
    if (rest.size() > longestCsvRecordInBytes)
      return ImportFault{{.file = file.name, .line = line + 1, .reason = "expected a record of at most 1 MiB"}};
    if (end == std::string_view::npos) return std::nullopt;
    lastWasReturn = piece[end] == '\r';
    piece.remove_prefix(end + 1);
    if (!take(rest)) return ImportFault{{.file = file.name, .line = line, .reason = "expected fewer records"}};
    rest.clear();
  }
  return std::nullopt;
}

bool WeightLog::take(std::string_view text) {
  ++line;
  text = trimmed(text);
  if (const auto named = unitInComment(text)) unit = named;
  if (text.empty() || text.starts_with('#')) return true;
  const auto [when, weight, next, isOfScale] = cut(text);
  const std::optional<WeightUnit> known = isOfScale ? WeightUnit::kilograms : unit;
  const std::array<std::string_view, 4> fields{when, weight, next, known ? weightUnitSign(*known) : ""};
  return rows.add(line, std::span{fields}.first(weight.empty() ? 1 : fields.size()));
}

tl::expected<ImportedFile, ImportFault> WeightLog::finish(const ImportSettings& settings, const UUIDGenerator& ids) {
  if (!rest.empty() && !take(rest))
    return tl::unexpected{ImportFault{{.file = file.name, .line = line, .reason = "expected fewer records"}}};
  if (auto fault = readRows(rows, settings, ids, file)) return tl::unexpected{std::move(*fault)};
  return std::move(file);
}

}  // namespace mivo::host
