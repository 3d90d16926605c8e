// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "mivo/model/Record.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/statistics/DonationsFeature.h"

namespace mivo {

/// One way to give, as a button.
struct DonationChoice {
  std::string id, price;
  std::string spoken;  ///< "A coffee, 3 €"
  bool isChosen = false;
  bool operator==(const DonationChoice&) const = default;
};

template <RecordOf<DonationChoice> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [id, price, spoken, isChosen] = record;
  visit("id", id);
  visit("price", price);
  visit("spoken", spoken);
  visit("isChosen", isChosen);
}

/// Ways to give of one kind, at least one.
struct DonationGroup {
  std::string label;  ///< "Once", "Every month"
  std::vector<DonationChoice> choices;
  bool operator==(const DonationGroup&) const = default;
};

template <RecordOf<DonationGroup> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [label, choices] = record;
  visit("label", label);
  visit("choices", choices);
}

/// The donation sheet.
struct DonationsPage {
  std::string title, text;
  std::vector<DonationGroup> groups;
  std::string failure;  ///< while loading has failed
  std::string button;   ///< "Donate 10 €"; "Try again" after a failure; none while it loads and without ways to give
  std::string close;    ///< on the button that leaves without giving
  bool operator==(const DonationsPage&) const = default;
};

template <RecordOf<DonationsPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, text, groups, failure, button, close] = record;
  visit("title", title);
  visit("text", text);
  visit("groups", groups);
  visit("failure", failure);
  visit("button", button);
  visit("close", close);
}

/// Every text and flag of the donation sheet. Pure. Thread: any.
DonationsPage composeDonations(const DonationsFeature::State& state, const TextLookup& texts);

}  // namespace mivo
