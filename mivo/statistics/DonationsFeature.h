// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>

#include "mivo/model/Record.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// The donation screen: loads the ways to give when it appears, opens the one that is tapped.
struct DonationsFeature {
  enum class LoadingState { notLoaded, loading, loaded, failed };

  struct State {
    Observed<List<DonationProduct>> oneTimeProducts = List<DonationProduct>{};
    Observed<List<DonationProduct>> recurringProducts = List<DonationProduct>{};
    Observed<LoadingState> loadingState = LoadingState::notLoaded;
    Observed<std::string> failure = std::string{};  ///< one sentence, while loading has failed
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct onAppear {
      bool operator==(const onAppear&) const = default;
    };
    struct didTapRetry {
      bool operator==(const didTapRetry&) const = default;
    };
    struct didLoad {
      DonationProducts products;
      bool operator==(const didLoad&) const = default;
    };
    struct didFailToLoad {
      std::string reason;
      bool operator==(const didFailToLoad&) const = default;
    };
    struct didTapProduct {
      std::string id;
      bool operator==(const didTapProduct&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::onAppear, Cases::didTapRetry, Cases::didLoad, Cases::didFailToLoad, Cases::didTapProduct> {
    using variant::variant;
  };

  Client<DonationClient> donations = currentDependencies().donations;
  Client<LinkOpener> links = currentDependencies().links;

  Effect<Action> reduce(State& state, const Action& action) const;
};

template <RecordOf<DonationsFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [oneTimeProducts, recurringProducts, loadingState, failure] = record;
  visit("oneTimeProducts", oneTimeProducts);
  visit("recurringProducts", recurringProducts);
  visit("loadingState", loadingState);
  visit("failure", failure);
}

}  // namespace mivo
