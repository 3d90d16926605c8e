// SPDX-License-Identifier: MIT
#include "host/import/RecordRows.h"

#include <algorithm>
#include <utility>

namespace mivo::host {
namespace {

bool isDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// "81,4" where commas separate fields is two of them, which nobody could tell from a weight and another number, but
/// that the row has one more than the header.
bool hasSplitNumber(std::span<const std::string_view> fields, const ImportColumns& columns) {
  if (fields.size() <= columns.fieldCount) return false;
  if (std::ranges::all_of(fields.subspan(columns.fieldCount), &std::string_view::empty)) return false;
  return std::ranges::any_of(columns.known, [&](const ImportColumn& column) {
    const bool isNumber = column.role == Role::weight || column.role == Role::length || column.role == Role::goal;
    return isNumber && isDigits(fields[column.index]) && isDigits(fields[column.index + 1]);
  });
}

}  // namespace

RecordRows::RecordRows(ImportColumns known) : layout{std::move(known)} {}

bool RecordRows::add(std::int64_t line, std::span<const std::string_view> fields, std::size_t number) {
  const auto isFilled = [](std::string_view field) { return !field.empty(); };
  if (std::ranges::none_of(fields, isFilled)) return true;
  const bool isLone = fields.size() == 1 && layout.fieldCount > 1;
  for (std::size_t place = 0; place < layout.known.size(); ++place) {
    const std::size_t index = layout.known[place].index;
    if (isLone)
      bytes += place == 0 ? fields.front() : std::string_view{};
    else if (index < fields.size())
      bytes += fields[index];
    if (bytes.size() > mostBytes) return false;
    ends.push_back(static_cast<std::uint32_t>(bytes.size()));
  }
  marks.push_back({line, number, isLone, hasSplitNumber(fields, layout)});
  return true;
}

std::string RecordRows::nameOf(const Row& row, std::size_t place) const {
  const std::string& name = layout.known[place].name;
  return layout.hasPaths ? layout.list + '[' + std::to_string(row.number) + "]." + name : name;
}

}  // namespace mivo::host
