// SPDX-License-Identifier: MIT
#include "host/app/AppFeature.h"

#include <algorithm>
#include <utility>

#include "host/app/FaultText.h"
#include "host/app/Settings.h"
#include "host/fasting/SameWeight.h"
#include "host/overlaps/OverlapRepair.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/store/Reducers.h"

namespace mivo::host {
namespace {

using Action = AppFeature::Action;
using State = AppFeature::State;
using Step = AppFeature::Step;

const FastRecord* find(const List<FastRecord>& fasts, UUID id) {
  const auto found = std::ranges::find(fasts, id, [](const FastRecord& record) { return record.fast.id; });
  return found == fasts.end() ? nullptr : &*found;
}

void take(State& state, std::vector<FastRecord> fasts, std::vector<BodyWeightSample> weights) {
  state.statistics.fasts = List<FastingDataEntry>{entries(fasts)};
  state.fasts = List<FastRecord>{std::move(fasts)};
  state.weights = List<BodyWeightSample>{std::move(weights)};
}

// What takes records away is worth an offer, and so are the stop, since no edit makes a fast run on, and a weight,
// which is not seen where it was typed in; the rest can be edited where it stands.
bool offersUndo(Step step) {
  return step != Step::start && step != Step::edit && step != Step::add && step != Step::undo;
}

}  // namespace

AppFeature::State AppFeature::State::make(TimeRange timeRange, WeightUnit usualUnit) {
  State state{.statistics = StatisticsFeature::State::make(StatsContainer::empty(), {}, timeRange),
              .now = dependency(&Dependencies::date)->now()};
  state.statistics.goalWeightCardState.weightUnit = usualUnit;
  state.statistics.addWeightLogState.weightUnit = usualUnit;
  return state;
}

const FastRecord* AppFeature::State::runningFast() const {
  const auto found = std::ranges::find_if(*fasts, [](const FastRecord& record) { return !record.fast.finished; });
  return found == fasts->end() ? nullptr : &*found;
}

auto AppFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  return combine(scope<Action::statistics>(&State::statistics, statistics), [this](State& s, const Action& a) {
    return std::visit([&](const auto& sent) { return on(s, sent); }, a);
  })(state, action);
}

// What the statistics leave to their host.
auto AppFeature::on(State& state, const Action::statistics& sent) const -> Effect<Action> {
  using Sent = StatisticsFeature::Action;
  if (std::holds_alternative<Sent::onAppear>(sent.action)) {
    takeSettings(state);
    recompute(state);
  } else if (std::holds_alternative<Sent::binding>(sent.action)) {
    recompute(state);
  } else if (std::holds_alternative<Sent::didTapFixOverlappingFasts>(sent.action)) {
    state.overlapRepair = overlapRepair(state.fasts->elements(), date->now());
  } else if (const auto* weight = std::get_if<Sent::addWeightLogAction>(&sent.action)) {
    if (const auto* accepted = std::get_if<AddWeightLogFeature::Action::didAcceptSample>(&weight->action))
      return saveWeight(state, accepted->sample);
  } else if (const auto* goal = std::get_if<Sent::goalWeightCardAction>(&sent.action)) {
    using Card = GoalWeightCardFeature::Action;
    const auto& card = state.statistics.goalWeightCardState;
    if (std::holds_alternative<Card::didSetGoal>(goal->action) ||
        std::holds_alternative<Card::didTypeGoal>(goal->action))
      setGoalWeight(*userDefaults, card.goalInKg);
    if (std::holds_alternative<Card::didChangeUnit>(goal->action)) setWeightUnit(*userDefaults, card.weightUnit);
  }
  return {};
}

auto AppFeature::on(State&, const Action::reload&) const -> Effect<Action> {
  return Effect<Action>::run(
      [](const Send<Action>& send, std::stop_token, const Client<HistoryClient>& client,
         const Client<TextLookup>& lookup) {
        try {
          send(Action::didLoad{client->load()});
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      history, texts);
}

auto AppFeature::on(State& state, const Action::didLoad& loaded) const -> Effect<Action> {
  take(state, loaded.history.fasts, loaded.history.weights);
  auto& card = state.statistics.addWeightLogState;
  if (!loaded.history.weights.empty() && !*card.typedText) card.weightInKg = loaded.history.weights.back().weightInKg;
  recompute(state);
  return {};
}

auto AppFeature::on(State& state, const Action::didFail& failed) const -> Effect<Action> {
  state.failure = failed.sentence;
  return {};
}

// As when the statistics come on screen, where they read their settings.
auto AppFeature::on(State& state, const Action::didChangeSettings&) const -> Effect<Action> {
  return reduce(state, Action::statistics{StatisticsFeature::Action::onAppear{}});
}

auto AppFeature::on(State& state, const Action::recompute&) const -> Effect<Action> {
  recompute(state);
  return {};
}

auto AppFeature::on(State& state, const Action::didTapStart& tapped) const -> Effect<Action> {
  FastRecord begun{mivo::ongoingFast(uuid->next(), tapped.start, tapped.goalSeconds), {}};
  if (auto sentence = refusal(state, begun)) return refuse(state, std::move(*sentence));
  return write(Step::start, adding(std::move(begun)));
}

auto AppFeature::on(State& state, const Action::didTapStop& tapped) const -> Effect<Action> {
  const FastRecord* running = state.runningFast();
  if (!running) return {};
  FastRecord ended = stopped(*running, tapped.end);
  if (auto sentence = refusal(state, ended)) return refuse(state, std::move(*sentence));
  return write(Step::stop, replacing(*running, std::move(ended)));
}

auto AppFeature::on(State& state, const Action::didSaveFast& saved) const -> Effect<Action> {
  const FastRecord* before = find(state.fasts, saved.record.fast.id);
  if (before && *before == saved.record) return {};
  if (auto sentence = refusal(state, saved.record, before ? std::optional{*before} : std::nullopt))
    return refuse(state, std::move(*sentence));
  if (!before) return write(Step::add, adding(saved.record));
  return write(Step::edit, replacing(*before, saved.record));
}

auto AppFeature::on(State& state, const Action::didDeleteFast& deleted) const -> Effect<Action> {
  const FastRecord* record = find(state.fasts, deleted.id);
  return record ? write(Step::remove, removing(*record)) : Effect<Action>{};
}

auto AppFeature::on(State& state, const Action::didDeleteWeight& deleted) const -> Effect<Action> {
  const auto sample = std::ranges::find(*state.weights, deleted.id, &BodyWeightSample::id);
  if (sample == state.weights->end()) return {};
  return write(Step::removeWeight, removing(*sample));
}

auto AppFeature::on(State& state, const Action::didConfirmOverlapRepair&) const -> Effect<Action> {
  if (!*state.overlapRepair) return {};
  HistoryChange change = **state.overlapRepair;
  state.overlapRepair = std::nullopt;
  return write(Step::repairOverlaps, std::move(change));
}

auto AppFeature::on(State& state, const Action::didCancelOverlapRepair&) const -> Effect<Action> {
  state.overlapRepair = std::nullopt;
  return {};
}

auto AppFeature::on(State& state, const Action::didTapUndo&) const -> Effect<Action> {
  if (!*state.undo) return {};
  UndoOffer offer = **state.undo;
  state.undo = std::nullopt;
  return Effect<Action>::run(
      [](const Send<Action>& send, std::stop_token, const Client<HistoryClient>& client,
         const Client<TextLookup>& lookup, const UndoOffer& offered) {
        try {
          client->apply(offered.change);
        } catch (const std::exception& error) {
          return send(Action::didFailToUndo{offered, faultText(error, *lookup)});
        }
        send(Action::didWrite{Step::undo, offered.change});
      },
      history, texts, std::move(offer));
}

auto AppFeature::on(State& state, const Action::didFailToUndo& failed) const -> Effect<Action> {
  state.undo = failed.offer;
  state.failure = failed.sentence;
  return {};
}

auto AppFeature::on(State& state, const Action::didDismissMessages&) const -> Effect<Action> {
  if (state.failure->empty()) state.undo = std::nullopt;
  state.failure = std::string{};
  return {};
}

auto AppFeature::on(State& state, const Action::didWrite& written) const -> Effect<Action> {
  auto fasts = state.fasts->elements();
  auto weights = state.weights->elements();
  apply(written.change, fasts, weights);
  take(state, std::move(fasts), std::move(weights));
  state.failure = std::string{};
  if (offersUndo(written.step)) state.undo = UndoOffer{written.step, inverse(written.change)};
  recompute(state);
  return {};
}

// Those of the host that the cards show; the module reads its own.
void AppFeature::takeSettings(State& state) const {
  auto& goal = state.statistics.goalWeightCardState;
  auto& entry = state.statistics.addWeightLogState;
  goal.goalInKg = goalWeight(*userDefaults);
  const auto unit = weightUnit(*userDefaults);
  if (!unit) return;
  if (*unit != entry.weightUnit) entry.typedText = std::nullopt;  // was meant in the unit before
  entry.weightUnit = *unit;
  goal.weightUnit = *unit;
}

// The add-weight card is told of the outcome too: it shows it.
auto AppFeature::saveWeight(State& state, const BodyWeightSample& sample) const -> Effect<Action> {
  if (sameWeight(*state.weights, sample, state.statistics.addWeightLogState.weightUnit, *masses)) {
    state.failure = texts->text("This weight is saved already.");
    return reduce(state, Action::statistics{
                             StatisticsFeature::Action::addWeightLogAction{AddWeightLogFeature::Action::didSave{}}});
  }
  return Effect<Action>::run(
      [](const Send<Action>& send, std::stop_token, const Client<HistoryClient>& client,
         const Client<TextLookup>& lookup, const HistoryChange& written) {
        using Card = AddWeightLogFeature::Action;
        const auto answer = [&send](Card action) {
          send(Action::statistics{StatisticsFeature::Action::addWeightLogAction{std::move(action)}});
        };
        try {
          client->apply(written);
        } catch (const std::exception& error) {
          return answer(Card::didFailToSave{faultText(error, *lookup)});
        }
        send(Action::didWrite{Step::addWeight, written});
        answer(Card::didSave{});
      },
      history, texts, adding(sample));
}

auto AppFeature::write(Step step, HistoryChange change) const -> Effect<Action> {
  return Effect<Action>::run(
      [](const Send<Action>& send, std::stop_token, const Client<HistoryClient>& client,
         const Client<TextLookup>& lookup, Step done, const HistoryChange& written) {
        try {
          client->apply(written);
        } catch (const std::exception& error) {
          return send(Action::didFail{faultText(error, *lookup)});
        }
        send(Action::didWrite{done, written});
      },
      history, texts, step, std::move(change));
}

// A running fast whose start lies ahead, because the clock was set back, cannot be stopped: it is kept as it is.
std::optional<std::string> AppFeature::refusal(const State& state, const FastRecord& record,
                                               const std::optional<FastRecord>& before) const {
  const FastRecord* running = state.runningFast();
  if (!record.fast.finished && running && running->fast.id != record.fast.id)
    return texts->text("A fast is running already.");
  const auto fault = recordFault(record, before, date->now());
  return fault ? std::optional{faultText(*fault, *texts)} : std::nullopt;
}

Effect<Action> AppFeature::refuse(State& state, std::string sentence) const {
  state.failure = std::move(sentence);
  return {};
}

void AppFeature::recompute(State& state) const {
  auto& screen = state.statistics;
  const Date present = date->now();
  StatsContainer fresh = screen.stats.copy();
  fresh.update(*screen.fasts, runningFast(state.fasts->elements(), present), screen.streakSettings, screen.timeRange);
  screen.updateFastingChart(fresh);
  screen.updateWeightChart(StatsContainer::update(*state.weights));
  if (!screen.addWeightLogState.isDateChosen) screen.addWeightLogState.logDate = present;
  state.now = present;
}

}  // namespace mivo::host
