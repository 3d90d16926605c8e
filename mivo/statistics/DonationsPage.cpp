// SPDX-License-Identifier: MIT
#include "mivo/statistics/DonationsPage.h"

#include <string_view>

#include "mivo/model/Translatable.h"

namespace mivo {
namespace {

using State = DonationsFeature::State;
using Loading = DonationsFeature::LoadingState;

void addGroup(DonationsPage& page, std::string label, const List<DonationProduct>& products,
              const std::string& chosenID) {
  if (products.empty()) return;
  DonationGroup group{.label = std::move(label), .choices = {}};
  for (const DonationProduct& product : products)
    group.choices.push_back({.id = product.id,
                             .price = product.price,
                             .spoken = product.title + ", " + product.price,
                             .isChosen = product.id == chosenID});
  page.groups.push_back(std::move(group));
}

std::string buttonText(const State& state, const TextLookup& texts) {
  if (state.loadingState == Loading::loading) return {};
  if (state.loadingState == Loading::failed) return texts.text("Try again");
  const DonationProduct* chosen = chosenProduct(state);
  return chosen ? filledIn(texts.text("Donate {1}"), {chosen->price}) : texts.text("Donate");
}

}  // namespace

DonationsPage composeDonations(const State& state, const TextLookup& texts) {
  DonationsPage page{
      .title = texts.text("Donate"),
      .text = texts.text(donationRequest),
      .groups = {},
      .failure = state.loadingState == Loading::failed ? *state.failure : "",
      .button = buttonText(state, texts),
      .close = texts.text("Not now"),
  };
  addGroup(page, texts.text("Once"), state.oneTimeProducts, state.chosenID);
  addGroup(page, texts.text("Every month"), state.recurringProducts, state.chosenID);
  return page;
}

}  // namespace mivo
