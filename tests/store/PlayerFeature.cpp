// SPDX-License-Identifier: MIT
#include "tests/store/PlayerFeature.h"

namespace mivo::player {

auto PlayerFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  const auto letter = [](char c) {
    return [c](State& s, const Action&) {
      s.order += c;
      return Effect<Action>::none();
    };
  };
  return combine(
      binding(), letter('b'), scope<Action::volume>(&State::volume, volume), letter('v'),
      [this](State& s, const Action& a) { return core(s, a); }, letter('c'),
      presenting<Action::destination>(&State::destination, destinations))(state, action);
}

auto PlayerFeature::core(State& state, const Action& action) const -> Effect<Action> {
  if (std::holds_alternative<Action::didTapLyrics>(action))
    state.destination = Destination::State::lyrics{{.text = std::string{}}};
  else if (std::holds_alternative<Action::didTapCredits>(action))
    state.destination = Destination::State::credits{};
  else if (std::holds_alternative<Action::didTapBack>(action))
    state.destination = std::nullopt;
  else if (const auto* set = std::get_if<Action::setSongs>(&action))
    state.songs = set->songs;
  else if (std::holds_alternative<Action::loadBoth>(action))
    return Effect<Action>::merge(
        Effect<Action>::run(
            [](const Send<Action>& send, StopToken) { send(Action::setSongs{List<std::string>{"one"}}); }),
        Effect<Action>::run(
            [](const Send<Action>& send, StopToken, const List<std::string>& songs) { send(Action::setSongs{songs}); },
            List<std::string>{"one", "two"}));
  return {};
}

}  // namespace mivo::player
