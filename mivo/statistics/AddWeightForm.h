// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"
#include "mivo/statistics/AddWeightLogFeature.h"

namespace mivo {

/// What stands in the card that takes a weight in. Its title and its button are the screen's.
struct AddWeightForm {
  std::string fieldText;  ///< as it was typed, or the weight: "81.4", "12 st 11 lb"
  std::string unit;       ///< "kg"; none for stones
  std::string dateText;   ///< "Today, 13:24": of the weighing
  std::string dateTitle;  ///< over what chooses the date
  Date date;
  std::string problem;    ///< one sentence about why it was not saved
  bool isSaving = false;  ///< it can be saved again once it is
  bool operator==(const AddWeightForm&) const = default;
};

template <RecordOf<AddWeightForm> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [fieldText, unit, dateText, dateTitle, date, problem, isSaving] = record;
  visit("fieldText", fieldText);
  visit("unit", unit);
  visit("dateText", dateText);
  visit("dateTitle", dateTitle);
  visit("date", date);
  visit("problem", problem);
  visit("isSaving", isSaving);
}

/// Pure; six texts. A date reads differently after midnight: the state alone does not tell when to compose again.
AddWeightForm composeAddWeight(const AddWeightLogFeature::State& state, const PageClients& clients);

/// One sentence under the field, in the user's language; empty where all is well.
std::string problemText(const AddWeightLogFeature::State& state, const TextLookup& texts);

}  // namespace mivo
