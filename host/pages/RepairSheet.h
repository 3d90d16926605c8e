// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/fasting/HistoryChange.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// What the repair makes of one fast, or of several that become one.
struct RepairRow {
  std::string date;    ///< "Tue 9 Jun"
  std::string kind;    ///< "Merged", "Trimmed"
  std::string before;  ///< "20:02 – 12:33 and 11:00 – 13:00"
  std::string after;   ///< "20:02 – 13:00"; empty of one that goes into another, which stays as it is
  std::string spoken;  ///< all of it
  bool operator==(const RepairRow&) const = default;
};

template <RecordOf<RepairRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [date, kind, before, after, spoken] = record;
  visit("date", date);
  visit("kind", kind);
  visit("before", before);
  visit("after", after);
  visit("spoken", spoken);
}

/// The repair of overlapping fasts, for the user to agree to.
struct RepairSheet {
  std::string title;    ///< "Fix overlapping fasts"
  std::string summary;  ///< "3 fasts will change. You can undo this."
  std::vector<RepairRow> rows;
  std::string button;       ///< "Fix 3 fasts"
  std::string cancelLabel;  ///< "Not now"
  bool operator==(const RepairSheet&) const = default;
};

template <RecordOf<RepairSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, summary, rows, button, cancelLabel] = record;
  visit("title", title);
  visit("summary", summary);
  visit("rows", rows);
  visit("button", button);
  visit("cancelLabel", cancelLabel);
}

/// `change` is what `overlapRepair` proposes.
RepairSheet composeRepairSheet(const HistoryChange& change, const PageClients& clients);

}  // namespace mivo::host
