// SPDX-License-Identifier: MIT
#include "host/history/Header.h"

#include <algorithm>
#include <array>

#include "mivo/model/DecimalNumber.h"
#include "mivo/model/LowerCase.h"

namespace mivo::host {

std::string plainHeader(std::string_view name) {
  std::string result;
  for (const char c : name) {
    if (c == ' ' || c == '_' || c == '-' || c == '\t') continue;
    result += lowerCase(c);
  }
  return result;
}

std::string joined(const CsvRow& header) {
  std::string result;
  for (const std::string_view field : header.fields) {
    if (result.size() > 200) break;  // more than a sentence quotes
    if (field.data() != header.fields.front().data()) result += ',';
    result += field;
  }
  return result;
}

std::optional<BadRecord> wrongFieldCount(const CsvRow& row, std::size_t expected, const std::string& file) {
  const std::size_t count = row.fields.size();
  if (count == expected) return std::nullopt;
  const bool onlyEmptyOnesTooMany =
      count > expected && std::ranges::all_of(row.fields.subspan(expected), &std::string_view::empty);
  if (onlyEmptyOnesTooMany) return std::nullopt;
  return BadRecord{
      .file = file,
      .line = row.line,
      .reason = "expected " + std::to_string(expected) + " fields as in the header, found " + std::to_string(count)};
}

std::optional<double> decimalNumber(std::string_view text, bool decimalComma) {
  std::array<char, 64> copy;
  if (text.empty() || text.size() > copy.size()) return std::nullopt;
  std::ranges::copy(text, copy.begin());
  char* const end = copy.data() + text.size();
  if (decimalComma && text.find('.') == std::string_view::npos)
    if (char* const comma = std::find(copy.data(), end, ','); comma != end) *comma = '.';
  return readDecimalNumber({copy.data(), text.size()});
}

}  // namespace mivo::host
