// SPDX-License-Identifier: MIT
#include "mivo/statistics/DonationsFeature.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <utility>

namespace mivo {
namespace {

using Feature = DonationsFeature;
using State = Feature::State;
using Action = Feature::Action;

void didFail(State& state, std::string reason) {
  state.loadingState = Feature::LoadingState::failed;
  state.failure = std::move(reason);
}

Effect<Action> load(const Feature& feature, State& state) {
  if (state.loadingState == Feature::LoadingState::loading) return {};
  if (!feature.donations) {
    state.loadingState = Feature::LoadingState::loaded;
    return {};
  }
  state.loadingState = Feature::LoadingState::loading;
  return Effect<Action>::run(
      [](const Send<Action>& send, StopToken stop, const Client<DonationClient>& donations) {
        donations->products(std::move(stop), [send](const Answer<DonationProducts>& answer) {
          try {
            send(Action::didLoad{answer.value()});
          } catch (const std::exception& error) {
            send(Action::didFailToLoad{error.what()});
          }
        });
      },
      feature.donations);
}

const DonationProduct* product(const State& state, const std::string& id) {
  for (const auto* list : {&*state.oneTimeProducts, &*state.recurringProducts})
    if (const auto found = std::ranges::find(*list, id, &DonationProduct::id); found != list->end()) return found;
  return nullptr;
}

std::string firstChoice(const DonationProducts& products) {
  const auto& [once, monthly] = products;
  if (!once.empty()) return once[std::min<std::size_t>(1, once.size() - 1)].id;
  return monthly.empty() ? std::string{} : monthly.front().id;
}

void didLoad(State& state, const DonationProducts& products) {
  state.oneTimeProducts = products.oneTime;
  state.recurringProducts = products.recurring;
  state.loadingState = Feature::LoadingState::loaded;
  state.failure = std::string{};
  if (!chosenProduct(state)) state.chosenID = firstChoice(products);
}

Effect<Action> open(const Feature& feature, const State& state, const std::string& id) {
  const DonationProduct* tapped = product(state, id);
  if (!tapped || !feature.links) return {};
  return Effect<Action>::run(
      [](const Send<Action>&, StopToken, const Client<LinkOpener>& links, const std::string& url) { links->open(url); },
      feature.links, tapped->url);
}

}  // namespace

auto DonationsFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  if (std::holds_alternative<Action::onAppear>(action)) return load(*this, state);
  if (const auto* loaded = std::get_if<Action::didLoad>(&action)) didLoad(state, loaded->products);
  if (const auto* failed = std::get_if<Action::didFailToLoad>(&action)) didFail(state, failed->reason);
  if (const auto* chosen = std::get_if<Action::didChooseProduct>(&action)) state.chosenID = chosen->id;
  if (std::holds_alternative<Action::didTapButton>(action))
    return state.loadingState == Feature::LoadingState::failed ? load(*this, state)
                                                               : open(*this, state, state.chosenID);
  if (const auto* tapped = std::get_if<Action::didTapProduct>(&action)) return open(*this, state, tapped->id);
  return {};
}

const DonationProduct* chosenProduct(const State& state) { return product(state, state.chosenID); }

}  // namespace mivo
