// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/history/CsvTable.h"
#include "host/text/BadRecord.h"

namespace mivo::host {

/// A header's name without what spreadsheets and people vary: lower case, no blanks, underscores, hyphens.
std::string plainHeader(std::string_view name);

/// A name that a column may have, in the form of `plainHeader`, and what stands below it.
template <class Role>
struct HeaderName {
  std::string_view name;
  Role role;
};

/// Where a role stands in the rows of a table.
struct Column {
  std::size_t index = 0;
  std::string name;  ///< as the header spells it
};

/// The column of a role, or nothing where the header has none. A second one for the same role is written to `bad`.
template <class Role>
std::optional<Column> column(const CsvRow& header, std::span<const HeaderName<Role>> names, Role role,
                             const std::string& file, std::optional<BadRecord>& bad) {
  std::optional<Column> found;
  for (std::size_t index = 0; index < header.fields.size(); ++index) {
    const std::string plain = plainHeader(header.fields[index]);
    const auto known = std::ranges::find(names, plain, &HeaderName<Role>::name);
    if (known == names.end() || known->role != role) continue;
    if (found && !bad)
      bad = BadRecord{file, header.line, found->name, quotable(header.fields[index]), "expected one such column"};
    if (!found) found = Column{index, std::string{header.fields[index]}};
  }
  return found;
}

/// The header's own text for a sentence: "start,end".
std::string joined(const CsvRow& header);

/// A fault where a row has not as many fields as the header; empty ones too many at its end do no harm.
std::optional<BadRecord> wrongFieldCount(const CsvRow& row, std::size_t expected, const std::string& file);

/// A decimal number, all of the text. Where `decimalComma` is true its sign may be a comma. Nothing for what is not
/// finite.
std::optional<double> decimalNumber(std::string_view text, bool decimalComma);

}  // namespace mivo::host
