// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/app/AppFeature.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// The file that weights are taken from: which it is, and another one or none.
struct HealthSheet {
  std::string title;  ///< "Health data", also of the dialog that chooses the file
  std::string text;
  std::string fault;        ///< why the file cannot be read, or what of it was not taken; none where all is well
  double progress = -1;     ///< 0 to 1 while it is read; less than 0 where it is not
  std::string chooseLabel;  ///< "Choose file", "Choose another file"
  std::string unlinkLabel;  ///< none where no file is linked
  std::string closeLabel;
  bool operator==(const HealthSheet&) const = default;
};

template <RecordOf<HealthSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, text, fault, progress, chooseLabel, unlinkLabel, closeLabel] = record;
  visit("title", title);
  visit("text", text);
  visit("fault", fault);
  visit("progress", progress);
  visit("chooseLabel", chooseLabel);
  visit("unlinkLabel", unlinkLabel);
  visit("closeLabel", closeLabel);
}

HealthSheet composeHealthSheet(const HealthFeature::State& state, const TextLookup& texts);

/// "export.zip": the linked file as a row names it; "None" where none is linked, "Cannot be read" where that failed,
/// and nothing where none is offered.
std::string linkedFileText(const HealthFeature::State& state, const TextLookup& texts);

}  // namespace mivo::host
