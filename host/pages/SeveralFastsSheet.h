// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/data/ImportFeature.h"
#include "host/pages/ImportSheet.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// Adding several past fasts at once: lines that somebody types or pastes, and what they would bring. What is not to be
/// seen at a time is empty.
struct SeveralFastsSheet {
  std::string title;       ///< "Add several fasts"
  std::string text;        ///< how a line is written
  std::string fieldLabel;  ///< "Fasts, one a line"
  std::string hint;        ///< two lines, as the user could type them
  std::string summary;     ///< "12 new fasts, 3 there already, 2 refused"
  std::string fault;       ///< why they are not read, or were not added
  std::string refusedTitle;
  std::vector<RefusedRow> refused;
  std::string moreRefused;
  std::string button;   ///< "Add 12 fasts"
  bool canAdd = false;  ///< there is something new
  bool isBusy = false;  ///< it is being added
  std::string cancelLabel;
  bool operator==(const SeveralFastsSheet&) const = default;
};

template <RecordOf<SeveralFastsSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, text, fieldLabel, hint, summary, fault, refusedTitle, refused, moreRefused, button, canAdd, isBusy,
         cancelLabel] = record;
  visit("title", title);
  visit("text", text);
  visit("fieldLabel", fieldLabel);
  visit("hint", hint);
  visit("summary", summary);
  visit("fault", fault);
  visit("refusedTitle", refusedTitle);
  visit("refused", refused);
  visit("moreRefused", moreRefused);
  visit("button", button);
  visit("canAdd", canAdd);
  visit("isBusy", isBusy);
  visit("cancelLabel", cancelLabel);
}

SeveralFastsSheet composeSeveralFastsSheet(const ImportFeature::State& state, const PageClients& clients);

}  // namespace mivo::host
