// SPDX-License-Identifier: MIT
#include "host/pages/RepairSheet.h"

#include <algorithm>
#include <cstdint>

#include "host/fasting/Fasting.h"
#include "mivo/pages/DateTimeText.h"

namespace mivo::host {
namespace {

std::string timesText(const FastingDataEntry& fast, const PageClients& clients) {
  return clockText(fast.start, clients) + " – " + (fast.finished ? clockText(fast.finished->end, clients) : "");
}

std::string joined(const std::vector<const FastRecord*>& fasts, const PageClients& clients) {
  std::string all;
  for (const FastRecord* record : fasts) {
    const std::string times = timesText(record->fast, clients);
    all = all.empty() ? times : filledIn(clients.texts.text("{1} and {2}"), {all, times});
  }
  return all;
}

bool holds(const FastingDataEntry& whole, const FastingDataEntry& part) {
  return whole.start <= part.start && (!whole.finished || (part.finished && part.finished->end <= whole.finished->end));
}

// The fasts that became this one: itself, and those that are gone and lie within it.
std::vector<const FastRecord*> sources(const FastRecord& made, const HistoryChange& change) {
  std::vector<const FastRecord*> found;
  for (const FastRecord& old : change.removedFasts) {
    const bool isKept = fastWithID(change.addedFasts, old.fast.id) != nullptr;
    if (old.fast.id == made.fast.id || (!isKept && holds(made.fast, old.fast))) found.push_back(&old);
  }
  return found;
}

RepairRow composeRow(const FastRecord& made, const HistoryChange& change, const PageClients& clients) {
  const auto before = sources(made, change);
  RepairRow row{.date = dayText(made.fast.start, clients),
                .kind = before.size() > 1 ? clients.texts.text("Merged") : clients.texts.text("Trimmed"),
                .before = joined(before, clients),
                .after = timesText(made.fast, clients),
                .spoken = {}};
  row.spoken = row.date + ", " + row.kind + ": " + row.before + ", " + row.after;
  return row;
}

// Of a fast that goes into another one, which stays as it is.
RepairRow composeRowOfGone(const FastRecord& old, const PageClients& clients) {
  RepairRow row{.date = dayText(old.fast.start, clients),
                .kind = clients.texts.text("Merged"),
                .before = timesText(old.fast, clients),
                .after = {},
                .spoken = {}};
  row.spoken = row.date + ", " + row.kind + ": " + row.before;
  return row;
}

std::vector<RepairRow> composeRows(const HistoryChange& change, const PageClients& clients) {
  std::vector<RepairRow> rows;
  for (const FastRecord& old : change.removedFasts) {
    const auto becameIt = [&](const FastRecord& made) { return holds(made.fast, old.fast); };
    if (const FastRecord* made = fastWithID(change.addedFasts, old.fast.id))
      rows.push_back(composeRow(*made, change, clients));
    else if (std::ranges::none_of(change.addedFasts, becameIt))
      rows.push_back(composeRowOfGone(old, clients));
  }
  return rows;
}

}  // namespace

RepairSheet composeRepairSheet(const HistoryChange& change, const PageClients& clients) {
  const auto& texts = clients.texts;
  const auto count = static_cast<std::int64_t>(change.removedFasts.size());
  const auto counted = [&](const std::string& pattern) { return filledIn(pattern, {clients.numbers.string(count)}); };
  return {.title = texts.text("Fix overlapping fasts"),
          .summary = counted(texts.plural("{1} fast will change. You can undo this.",
                                          "{1} fasts will change. You can undo this.", count)),
          .rows = composeRows(change, clients),
          .button = counted(texts.plural("Fix {1} fast", "Fix {1} fasts", count)),
          .cancelLabel = texts.text("Not now")};
}

}  // namespace mivo::host
