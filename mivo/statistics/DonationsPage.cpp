// SPDX-License-Identifier: MIT
#include "mivo/statistics/DonationsPage.h"

#include <string_view>

#include "mivo/model/Translatable.h"

namespace mivo {
namespace {

using State = DonationsFeature::State;
using Loading = DonationsFeature::LoadingState;

constexpr std::string_view otherHelp = translatable(
    "There is no way to give here. It helps as much to tell a friend about Mivo, and to vote on what comes next.");

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

bool hasProducts(const State& state) { return !state.oneTimeProducts->empty() || !state.recurringProducts->empty(); }

std::string buttonText(const State& state, const TextLookup& texts) {
  if (state.loadingState == Loading::loading) return {};
  if (state.loadingState == Loading::failed) return texts.text("Try again");
  if (!hasProducts(state)) return {};
  const DonationProduct* chosen = chosenProduct(state);
  return chosen ? filledIn(texts.text("Donate {1}"), {chosen->price}) : texts.text("Donate");
}

}  // namespace

DonationsPage composeDonations(const State& state, const TextLookup& texts) {
  const bool isDeadEnd = state.loadingState == Loading::loaded && !hasProducts(state);
  DonationsPage page{
      .title = texts.text("Donate"),
      .text = texts.text(isDeadEnd ? otherHelp : donationRequest),
      .groups = {},
      .failure = state.loadingState == Loading::failed ? *state.failure : "",
      .button = buttonText(state, texts),
      .close = texts.text(isDeadEnd ? "Close" : "Not now"),
  };
  addGroup(page, texts.text("Once"), state.oneTimeProducts, state.chosenID);
  addGroup(page, texts.text("Every month"), state.recurringProducts, state.chosenID);
  return page;
}

}  // namespace mivo
