// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "host/pages/RowChange.h"
#include "mivo/model/BodyWeightSample.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"
#include "mivo/store/List.h"

namespace mivo::host {

// The list of all weights, the latest first. `weights` are by date.

/// The weight of a row; nothing for a row that is none.
const BodyWeightSample* weightOf(const List<BodyWeightSample>& weights, std::size_t row);

/// One weight of the list.
struct WeightRow {
  std::string date;    ///< "Tue 9 Jun"
  std::string time;    ///< "07:04"
  std::string weight;  ///< "72.4 kg"
  std::string spoken;  ///< all of it
  bool operator==(const WeightRow&) const = default;
};

template <RecordOf<WeightRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [date, time, weight, spoken] = record;
  visit("date", date);
  visit("time", time);
  visit("weight", weight);
  visit("spoken", spoken);
}

WeightRow composeWeightRow(const BodyWeightSample& sample, WeightUnit unit, const PageClients& clients);

/// What is spoken of the list while the keyboard is at a row: "Weights, Tue 9 Jun, ..."; its title alone for a row that
/// is none.
std::string weightsSpoken(const List<BodyWeightSample>& weights, std::size_t row, WeightUnit unit,
                          const PageClients& clients);

/// The list but for its rows, which are composed where they are seen.
struct WeightsPage {
  std::string openLabel;  ///< "All weights", of what leads here; none where there are none
  std::string title;      ///< "Weights"
  std::string note;       ///< what stands in the place of rows where there are none
  std::int64_t count = 0;
  std::string menuTitle, editLabel, saveLabel, removeLabel;  ///< of what can be done with a row
  bool operator==(const WeightsPage&) const = default;
};

template <RecordOf<WeightsPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [openLabel, title, note, count, menuTitle, editLabel, saveLabel, removeLabel] = record;
  visit("openLabel", openLabel);
  visit("title", title);
  visit("note", note);
  visit("count", count);
  visit("menuTitle", menuTitle);
  visit("editLabel", editLabel);
  visit("saveLabel", saveLabel);
  visit("removeLabel", removeLabel);
}

WeightsPage composeWeightsPage(const List<BodyWeightSample>& weights, const TextLookup& texts);

/// Where the rows of two lists differ. O(n); O(1) for the same list.
RowChange rowChange(const List<BodyWeightSample>& before, const List<BodyWeightSample>& after);

}  // namespace mivo::host
