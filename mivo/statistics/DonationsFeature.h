// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "mivo/model/Record.h"
#include "mivo/model/Translatable.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// The donation screen: loads the ways to give when it appears, lets the user choose one, and opens it. At first the
/// second of those for once is chosen, or what there is.
struct DonationsFeature {
  enum class LoadingState { notLoaded, loading, loaded, failed };

  struct State {
    Observed<List<DonationProduct>> oneTimeProducts = List<DonationProduct>{};
    Observed<List<DonationProduct>> recurringProducts = List<DonationProduct>{};
    Observed<LoadingState> loadingState = LoadingState::notLoaded;
    Observed<std::string> failure = std::string{};   ///< one sentence, while loading has failed
    Observed<std::string> chosenID = std::string{};  ///< the product that `didTapButton` opens
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct onAppear {
      bool operator==(const onAppear&) const = default;
    };
    struct didLoad {
      DonationProducts products;
      bool operator==(const didLoad&) const = default;
    };
    struct didFailToLoad {
      std::string reason;
      bool operator==(const didFailToLoad&) const = default;
    };
    struct didChooseProduct {
      std::string id;
      bool operator==(const didChooseProduct&) const = default;
    };
    /// The button below: opens the chosen product, or after a failure loads again.
    struct didTapButton {
      bool operator==(const didTapButton&) const = default;
    };
    struct didTapProduct {
      std::string id;
      bool operator==(const didTapProduct&) const = default;
    };
  };
  struct Action : Cases,
                  std::variant<Cases::onAppear, Cases::didLoad, Cases::didFailToLoad, Cases::didChooseProduct,
                               Cases::didTapButton, Cases::didTapProduct> {
    using variant::variant;
  };

  Client<DonationClient> donations = currentDependencies().donations;
  Client<LinkOpener> links = currentDependencies().links;

  Effect<Action> reduce(State& state, const Action& action) const;
};

template <RecordOf<DonationsFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [oneTimeProducts, recurringProducts, loadingState, failure, chosenID] = record;
  visit("oneTimeProducts", oneTimeProducts);
  visit("recurringProducts", recurringProducts);
  visit("loadingState", loadingState);
  visit("failure", failure);
  visit("chosenID", chosenID);
}

/// What the screen and its card ask for; to be looked up.
inline constexpr std::string_view donationRequest =
    translatable("Mivo is free, privacy-friendly and without ads. Donate to support my work. Thank you!");

/// None where nothing is listed.
const DonationProduct* chosenProduct(const DonationsFeature::State& state);

}  // namespace mivo
