// SPDX-License-Identifier: MIT
// Which screen is open. Some are open as long as the state has what they show; the others are named by it.
#include <algorithm>
#include <ranges>
#include <span>
#include <utility>
#include <vector>

#include "host/app/AppFeature.h"

namespace mivo::host {
namespace {

using Action = AppFeature::Action;
using State = AppFeature::State;
using Sent = StatisticsFeature::Action;
using Destination = StatisticsFeature::Destination;
using Badges = BadgeSummaryFeature;

Action toDestination(Destination::Action action) {
  using Shown = PresentationAction<Destination::Action>;
  return Action::statistics{Sent::destination{Shown::presented{std::move(action)}}};
}

Action toBadges(Badges::Action action) { return toDestination(Destination::Action::badges{std::move(action)}); }

Screen openList(const Badges::State& badges) {
  if (!badges.destination) return Screen::badges;
  return std::holds_alternative<Badges::Destination::State::milestones>(*badges.destination) ? Screen::milestones
                                                                                             : Screen::streaks;
}

const FastRecord* lastEndedFast(std::span<const FastRecord> fasts) {
  for (const FastRecord& record : fasts | std::views::reverse)
    if (record.fast.finished) return &record;
  return nullptr;
}

std::optional<std::size_t> newestReadable(std::span<const ListedBackup> backups) {
  const auto found = std::ranges::find_if(backups, [](const ListedBackup& one) { return one.counts.has_value(); });
  return found == backups.end() ? std::nullopt : std::optional{static_cast<std::size_t>(found - backups.begin())};
}

// Some screens show a record that need not be there.
bool hasWhatIsShown(const State& state, Screen screen) {
  switch (screen) {
    case Screen::editFast:
    case Screen::fastMenu:
      return lastEndedFast(*state.fasts) != nullptr;
    case Screen::fastStart:
      return state.runningFast() != nullptr;
    case Screen::editWeight:
    case Screen::weightMenu:
      return !state.weights->empty();
    case Screen::health:
      return state.health.isOffered;
    case Screen::restoring:
      return newestReadable(*state.backups.backups).has_value();
    default:
      return true;
  }
}

Screen pageOf(Screen screen) { return kindOf(screen) == ScreenKind::sheet ? *screenBelow(screen) : screen; }

}  // namespace

Screen openScreen(const State& state) {
  if (*state.draft) return Screen::editFast;
  if (state.editedWeight) return Screen::editWeight;
  if (*state.overlapRepair) return Screen::overlaps;
  if (state.importing) return *state.importing->isTyped ? Screen::severalFasts : Screen::importing;
  if (*state.backups.chosen) return Screen::restoring;
  const auto& destination = state.statistics.destination;
  if (!destination) return state.screen;
  if (const auto* shown = std::get_if<Destination::State::badges>(&*destination)) return openList(shown->state);
  if (std::holds_alternative<Destination::State::donations>(*destination)) return Screen::donations;
  return *state.screen == Screen::feedback ? Screen::feedback : Screen::roadmap;
}

auto AppFeature::on(State& state, const Action::didOpen& asked) const -> Effect<Action> {
  Effect<Action> effect = backTo(state, asked.screen);
  std::vector<Screen> path;
  for (std::optional<Screen> at = asked.screen; at && !standsOn(openScreen(state), *at); at = screenBelow(*at))
    path.push_back(*at);
  for (const Screen screen : path | std::views::reverse) effect.add(enter(state, screen));
  return effect;
}

auto AppFeature::on(State& state, const Action::didClose& closed) const -> Effect<Action> {
  return openScreen(state) == closed.screen ? on(state, Action::didGoBack{}) : Effect<Action>{};
}

auto AppFeature::on(State& state, const Action::didGoBack&) const -> Effect<Action> {
  const auto below = screenBelow(openScreen(state));
  return below ? backTo(state, *below) : Effect<Action>{};
}

// What was changed on other pages is seen on return.
auto AppFeature::backTo(State& state, Screen screen) const -> Effect<Action> {
  const Screen before = pageOf(openScreen(state));
  Effect<Action> effect;
  for (Screen open = openScreen(state); screenBelow(open) && !standsOn(screen, open); open = openScreen(state))
    effect.add(leave(state, open));
  if (before != Screen::statistics && openScreen(state) == Screen::statistics)
    effect.add(reduce(state, Action::statistics{Sent::onAppear{}}));
  return effect;
}

auto AppFeature::enter(State& state, Screen screen) const -> Effect<Action> {
  if (!hasWhatIsShown(state, screen)) return {};
  switch (screen) {
    case Screen::statistics:
      state.screen = screen;
      return reduce(state, Action::statistics{Sent::onAppear{}});
    case Screen::badges:
      return reduce(state, Action::statistics{Sent::didTapOpenBadges{}});
    case Screen::milestones:
      return reduce(state, toBadges(Badges::Action::didTapMilestones{}));
    case Screen::streaks:
      return reduce(state, toBadges(Badges::Action::didTapStreaks{}));
    case Screen::roadmap:
      return reduce(state, Action::statistics{Sent::didTapOpenRoadmap{}});
    case Screen::donations:
      return openDonations(state);
    case Screen::overlaps:
      return reduce(state, Action::statistics{Sent::didTapFixOverlappingFasts{}});
    case Screen::addFast:
      return on(state, Action::didTapAddFast{});
    case Screen::editFast:
      return on(state, Action::didTapEditFast{lastEndedFast(*state.fasts)->fast.id});
    case Screen::editWeight:
      return on(state, Action::didTapEditWeight{state.weights->back().id});
    case Screen::importing:
    case Screen::severalFasts:
      state.importing = ImportFeature::State{.isTyped = screen == Screen::severalFasts};
      return {};
    case Screen::settings:
    case Screen::backups:
      state.screen = screen;
      return reduce(state, Action::backups{BackupsFeature::Action::list{screen == Screen::backups}});
    case Screen::restoring:
      return reduce(state, Action::backups{BackupsFeature::Action::didChoose{*newestReadable(*state.backups.backups)}});
    default:
      state.screen = screen;
      return {};
  }
}

auto AppFeature::openDonations(State& state) const -> Effect<Action> {
  Effect<Action> effect = reduce(state, Action::statistics{Sent::didTapOpenDonations{}});
  effect.add(reduce(state, toDestination(Destination::Action::donations{DonationsFeature::Action::onAppear{}})));
  return effect;
}

auto AppFeature::leave(State& state, Screen screen) const -> Effect<Action> {
  switch (screen) {
    case Screen::editFast:
      return on(state, Action::didDismissDraft{});
    case Screen::editWeight:
      return reduce(state, Action::editedWeight{PresentationAction<AddWeightLogFeature::Action>::dismiss{}});
    case Screen::overlaps:
      return on(state, Action::didCancelOverlapRepair{});
    case Screen::importing:
    case Screen::severalFasts:
      return reduce(state, Action::importing{PresentationAction<ImportFeature::Action>::dismiss{}});
    case Screen::restoring:
      return reduce(state, Action::backups{BackupsFeature::Action::didDismiss{}});
    case Screen::badges:
    case Screen::roadmap:
    case Screen::donations:
      return reduce(state, Action::statistics{Sent::destination{PresentationAction<Destination::Action>::dismiss{}}});
    case Screen::milestones:
    case Screen::streaks:
      return reduce(state,
                    toBadges(Badges::Action::destination{PresentationAction<Badges::Destination::Action>::dismiss{}}));
    case Screen::feedback:
      state.screen = Screen::statistics;  // the roadmap below it is told of by the statistics
      return {};
    default:
      state.screen = *screenBelow(screen);
      return {};
  }
}

}  // namespace mivo::host
