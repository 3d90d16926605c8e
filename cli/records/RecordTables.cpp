// SPDX-License-Identifier: MIT
#include "cli/records/RecordTables.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "cli/terminal/Paint.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/terminal/TextWidth.h"
#include "host/backup/BackupName.h"
#include "host/data/CountText.h"
#include "host/dates/SpokenDate.h"
#include "host/fasting/OverlappingFasts.h"
#include "mivo/fasting/GoalTime.h"

namespace mivo::cli {
namespace {

constexpr std::string_view gap = "  ";

/// What is printed can be typed in: it says which of two times is meant that the clocks show alike.
std::string withOffset(const std::optional<std::string>& text, Date date, const RecordRun& run) {
  const std::string offset = host::offsetIfDoubled(date, *run.zone);
  return text.value_or("") + (offset.empty() ? "" : ' ' + offset);
}

/// In digits: whole histories are read in columns.
std::string shortDateText(Date date, const RecordRun& run) {
  return withOffset(run.formatters.dateFormatter->string(date, "yMdjm"), date, run);
}

std::string durationText(double seconds, const RecordRun& run) {
  return run.formatters.hourMinDurationUnitFormatter->string(seconds).value_or("");
}

std::string goalText(std::int64_t goalSeconds, const RecordRun& run) {
  return mivo::goalText(static_cast<double>(goalSeconds), *run.formatters.hourDurationUnitFormatter,
                        *run.formatters.hourMinDurationUnitFormatter);
}

double length(const FastingDataEntry& fast, Date now) {
  return fast.finished ? fast.finished->duration() : std::max(0.0, secondsBetween(fast.start, now));
}

std::string weightText(double weightInKg, WeightUnit unit, const RecordRun& run) {
  return run.formatters.massFormatter->string(weightInKg, unit);
}

/// A note's lines one after another.
std::string inOneLine(const std::string& note) {
  std::string line;
  for (const char letter : note) {
    const bool isLineEnd = letter == '\n' || letter == '\r';
    if (!isLineEnd || !line.ends_with(' ')) line += isLineEnd ? ' ' : letter;
  }
  return line;
}

std::string withoutEndBlanks(const std::string& line) { return line.substr(0, line.find_last_not_of(' ') + 1); }

std::string shortened(const std::string& text, int width) {
  if (columns(text) <= width) return text;
  std::size_t end = text.size();
  while (end > 0 && columns(std::string_view{text}.substr(0, end)) > width - 1) {
    do --end;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80);  // inside a character
  }
  return width > 0 ? withoutEndBlanks(text.substr(0, end)) + "…" : "";
}

std::string linesOf(const std::string& sentence) {
  const auto width = outputWidth();
  std::string lines;
  for (const std::string& line : wrapped(sentence, width.value_or(columns(sentence)))) lines += line + '\n';
  return lines;
}

/// Cells under headings, each column as wide as its widest.
class Table {
 public:
  enum class Side { left, right };
  using Row = std::vector<std::string>;

  Table(Row headings, std::vector<Side> alignment) : rows{std::move(headings)}, sides{std::move(alignment)} {}

  void add(Row row) { rows.push_back(std::move(row)); }

  /// The last column takes what is left of the page, and is cut there; without a width it is whole. A page that is too
  /// narrow for the others has a block a row.
  std::string text(const Paint& paint, std::optional<int> pageWidth) const {
    const std::vector<int> widths = columnWidths();
    const int used =
        std::accumulate(widths.begin(), widths.end() - 1, 0) + static_cast<int>((widths.size() - 1) * gap.size());
    if (pageWidth && used + columns(rows.front().back()) > *pageWidth) return blocks(*pageWidth);
    std::string page;
    for (const Row& row : rows) {
      std::string line = lineOf(row, widths);
      line += pageWidth ? shortened(row.back(), *pageWidth - used) : row.back();
      page += paint(&row == rows.data() ? Ink::faint : Ink::plain, withoutEndBlanks(line)) + '\n';
    }
    return page;
  }

 private:
  std::vector<int> columnWidths() const {
    std::vector<int> widths(sides.size());
    for (const Row& row : rows)
      for (std::size_t column = 0; column < row.size(); ++column)
        widths[column] = std::max(widths[column], columns(row[column]));
    return widths;
  }

  std::string lineOf(const Row& row, const std::vector<int>& widths) const {
    std::string line;
    for (std::size_t column = 0; column + 1 < row.size(); ++column) {
      line +=
          sides[column] == Side::right ? paddedLeft(row[column], widths[column]) : padded(row[column], widths[column]);
      line += gap;
    }
    return line;
  }

  std::string blocks(int pageWidth) const {
    const Row& headings = rows.front();
    int widest = 0;
    for (const std::string& heading : headings) widest = std::max(widest, columns(heading));
    const int used = widest + 2 * static_cast<int>(gap.size());
    std::string page;
    for (const Row& row : std::span{rows}.subspan(1)) {
      page += row.front() + '\n';
      for (std::size_t column = 1; column < row.size(); ++column) {
        const bool isLast = column + 1 == row.size();
        const std::string cell = isLast ? shortened(row[column], pageWidth - used) : row[column];
        if (!cell.empty())
          page +=
              std::string{gap} + padded(headings[column], widest) + std::string{gap} + withoutEndBlanks(cell) + '\n';
      }
    }
    return page;
  }

  std::vector<Row> rows;
  std::vector<Side> sides;
};

template <class Records, class ID>
ShortIDs shortIDs(const Records& records, ID idOf) {
  std::vector<UUID> ids;
  ids.reserve(records.size());
  for (const auto& record : records) ids.push_back(idOf(record));
  return ShortIDs{ids};
}

}  // namespace

std::string described(const host::FastRecord& record, const ShortIDs& ids, const RecordRun& run) {
  const FastingDataEntry& fast = record.fast;
  const TextLookup& texts = *run.texts;
  const std::string id = ids.text(fast.id), start = dateText(fast.start, run), goal = goalText(fast.goalSeconds, run);
  if (!fast.finished) return id + std::string{gap} + filledIn(texts.text("since {1}, goal {2}"), {start, goal});
  return id + std::string{gap} +
         filledIn(texts.text("{1} to {2}, {3}, goal {4}"),
                  {start, dateText(fast.finished->end, run), durationText(fast.finished->duration(), run), goal});
}

std::string described(const BodyWeightSample& sample, const ShortIDs& ids, const RecordRun& run) {
  return ids.text(sample.id) + std::string{gap} + weightText(sample.weightInKg, run.weightUnit(), run) + ", " +
         dateText(sample.date, run);
}

std::string fastTable(const std::vector<host::FastRecord>& fasts, const RecordRun& run) {
  using enum Table::Side;
  const TextLookup& texts = *run.texts;
  if (fasts.empty()) return texts.text("No fasts yet.") + '\n';
  Table table{
      {"ID", texts.text("Start"), texts.text("End"), texts.text("Length"), texts.text("Goal"), texts.text("Note")},
      {left, right, right, right, right, left}};
  const ShortIDs ids = idsOf(fasts);
  const std::vector<bool> overlapping = host::overlappingFasts(fasts, run.now);
  for (std::size_t index = 0; index < fasts.size(); ++index) {
    const auto& [fast, note] = fasts[index];
    const std::string end = fast.finished ? shortDateText(fast.finished->end, run) : texts.text("running");
    table.add({ids.text(fast.id), shortDateText(fast.start, run), end, durationText(length(fast, run.now), run),
               goalText(fast.goalSeconds, run), (overlapping[index] ? "! " : "") + inOneLine(note)});
  }
  std::string page = table.text(Paint::forStandardOutput(), outputWidth());
  if (std::ranges::find(overlapping, true) != overlapping.end())
    page += '\n' + linesOf("! " + texts.text("overlaps another fast"));
  return page;
}

std::string weightTable(const std::vector<BodyWeightSample>& weights, const RecordRun& run) {
  using enum Table::Side;
  const TextLookup& texts = *run.texts;
  if (weights.empty()) return texts.text("No weights yet.") + '\n';
  Table table{{"ID", texts.text("Date"), texts.text("Weight"), ""}, {left, right, right, left}};
  const ShortIDs ids = idsOf(weights);
  const WeightUnit unit = run.weightUnit();
  for (const BodyWeightSample& sample : weights)
    table.add({ids.text(sample.id), shortDateText(sample.date, run), weightText(sample.weightInKg, unit, run), ""});
  return table.text(Paint::forStandardOutput(), outputWidth());
}

std::string backupTable(const std::vector<ListedBackup>& backups, const RecordRun& run) {
  using enum Table::Side;
  const TextLookup& texts = *run.texts;
  if (backups.empty()) return texts.text("No backups yet.") + '\n';
  const auto number = [&run](std::size_t count) {
    return run.formatters.numberFormatter->string(static_cast<std::int64_t>(count));
  };
  Table table{{texts.text("Backup"), texts.text("Date"), texts.text("Fasts"), texts.text("Weights"), ""},
              {left, right, right, right, left}};
  for (const auto& [backup, records] : backups)
    table.add({host::backupKey(backup.date), shortDateText(backup.date, run),
               records ? number(records->fasts.size()) : "", records ? number(records->weights.size()) : "",
               records ? "" : texts.text("cannot be read")});
  return table.text(Paint::forStandardOutput(), outputWidth());
}

std::string dateText(Date date, const RecordRun& run) {
  return withOffset(run.formatters.dateFormatter->string(date, "yMMMdjm"), date, run);
}

std::string fastCountText(std::size_t count, const RecordRun& run) {
  return host::fastCountText(static_cast<std::int64_t>(count), *run.texts, *run.formatters.numberFormatter);
}

std::string weightCountText(std::size_t count, const RecordRun& run) {
  return host::weightCountText(static_cast<std::int64_t>(count), *run.texts, *run.formatters.numberFormatter);
}

ShortIDs idsOf(const std::vector<host::FastRecord>& fasts) {
  return shortIDs(fasts, [](const host::FastRecord& record) { return record.fast.id; });
}

ShortIDs idsOf(const std::vector<BodyWeightSample>& weights) {
  return shortIDs(weights, [](const BodyWeightSample& sample) { return sample.id; });
}

}  // namespace mivo::cli
