// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/import/Columns.h"

namespace mivo::host {

/// The rows of a file as far as its records need them, kept until the whole of it has been seen, which alone decides
/// what a row can mean.
class RecordRows {
 public:
  struct Row {
    std::int64_t line;
    std::span<const std::string_view> cells;  ///< one a known column, in their order; empty where the row is shorter
    std::size_t number;                       ///< from 0
    bool isLone;                              ///< it has only one field, which stands in the first cell
    bool isSplitNumber;  ///< it is longer than the header, and what follows the weight is a decimal comma's rest
  };

  /// More text than this is not kept: years of weighing by the minute are less.
  static constexpr std::size_t mostBytes = std::size_t{1} << 28;

  explicit RecordRows(ImportColumns known);

  /// False where there is no more room.
  bool add(std::int64_t line, std::span<const std::string_view> fields) { return add(line, fields, marks.size()); }
  /// The same of one that others come before that were not added.
  bool add(std::int64_t line, std::span<const std::string_view> fields, std::size_t number);

  /// What a refusal calls a column: its name, or the way to it, "fast_data[12].EndDTM".
  std::string nameOf(const Row& row, std::size_t place) const;

  const ImportColumns& columns() const { return layout; }
  std::size_t size() const { return marks.size(); }

  /// `visit(const Row&)` for each, in order.
  template <class Visit>
  void forEach(Visit&& visit) const {
    std::vector<std::string_view> cells(layout.known.size());
    std::size_t begin = 0, next = 0;
    for (const Mark& mark : marks) {
      for (std::string_view& cell : cells) {
        cell = std::string_view{bytes}.substr(begin, ends[next] - begin);
        begin = ends[next++];
      }
      visit(Row{mark.line, cells, mark.number, mark.isLone, mark.isSplitNumber});
    }
  }

 private:
  struct Mark {
    std::int64_t line;
    std::size_t number;
    bool isLone, isSplitNumber;
  };

  ImportColumns layout;
  std::string bytes;  // of all cells, one after the other
  std::vector<std::uint32_t> ends;
  std::vector<Mark> marks;
};

}  // namespace mivo::host
