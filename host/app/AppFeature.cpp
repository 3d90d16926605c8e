// SPDX-License-Identifier: MIT
#include "host/app/AppFeature.h"

#include <algorithm>
#include <utility>

#include "host/app/Settings.h"
#include "host/database/FaultText.h"
#include "host/fasting/OverlapRepair.h"
#include "mivo/calculations/Recomputed.h"
#include "mivo/store/Reducers.h"

namespace mivo::host {
namespace {

using Action = AppFeature::Action;
using State = AppFeature::State;
using Step = AppFeature::Step;

// A weight is usually near the newest one: the field follows that, but where the user typed.
void followNewestWeight(AddWeightLogFeature::State& entry, const std::vector<BodyWeightSample>& before,
                        const std::vector<BodyWeightSample>& after) {
  const bool isNewest = !after.empty() && (before.empty() || before.back() != after.back());
  if (isNewest && !*entry.typedText) entry.weightInKg = after.back().weightInKg;
}

void take(State& state, std::vector<FastRecord> fasts, std::vector<BodyWeightSample> weights) {
  followNewestWeight(state.statistics.addWeightLogState, state.weights->elements(), weights);
  state.statistics.fasts = List<FastingDataEntry>{entries(fasts)};
  state.fasts = List<FastRecord>{std::move(fasts)};
  state.weights = List<BodyWeightSample>{std::move(weights)};
}

// A start is taken back by the button that it was begun with.
bool offersUndo(Step step) { return step != Step::start && step != Step::undo; }

bool isOf(const std::optional<FastDraft>& draft, const HistoryChange& change) {
  return draft && draft->isSaving && change.addedFasts == std::vector{draft->record};
}

bool isOf(const Presentation<AppFeature::EditedWeight>& edited, const HistoryChange& change) {
  return edited && change.removedWeights == std::vector{edited->before};
}

}  // namespace

AppFeature::State AppFeature::State::make(TimeRange timeRange, WeightUnit usualUnit) {
  State state{.statistics = StatisticsFeature::State::make(StatsContainer::empty(), {}, timeRange),
              .now = dependency(&Dependencies::date)->now()};
  state.statistics.goalWeightCardState.weightUnit = usualUnit;
  state.statistics.addWeightLogState.weightUnit = usualUnit;
  return state;
}

const FastRecord* AppFeature::State::runningFast() const { return host::runningFast(*fasts); }

auto AppFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  const auto entry = [this](EditedWeight& edited, const AddWeightLogFeature::Action& sent) {
    return weightEntry.reduce(edited.entry, sent);
  };
  return combine(scope<Action::statistics>(&State::statistics, statistics),
                 presenting<Action::editedWeight>(&State::editedWeight, entry),
                 presenting<Action::importing>(&State::importing, importFeature),
                 scope<Action::backups>(&State::backups, backupsFeature),
                 scope<Action::settings>(&State::settings, settingsFeature), [this](State& s, const Action& a) {
                   return std::visit([&](const auto& sent) { return on(s, sent); }, a);
                 })(state, action);
}

// What the statistics leave to their host.
auto AppFeature::on(State& state, const Action::statistics& sent) const -> Effect<Action> {
  using Sent = StatisticsFeature::Action;
  if (std::holds_alternative<Sent::onAppear>(sent.action)) {
    takeSettings(state);
    recompute(state);
    return reduce(state, Action::health{HealthFeature::Action::onAppear{}});
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

auto AppFeature::on(State& state, const Action::load&) const -> Effect<Action> {
  takeSettings(state);
  try {
    state.version = history->version();
    return on(state, Action::didLoad{history->load()});
  } catch (const std::exception& error) {
    return on(state, Action::didFail{faultText(error, *texts)});
  }
}

auto AppFeature::on(State& state, const Action::lookForChanges&) const -> Effect<Action> {
  try {
    const std::int64_t now = history->version();
    if (now == *state.version) return {};
    state.version = now;
    return on(state, Action::reload{});
  } catch (const std::exception& error) {
    return on(state, Action::didFail{faultText(error, *texts)});
  }
}

auto AppFeature::on(State&, const Action::reload&) const -> Effect<Action> {
  return Effect<Action>::run(
      [](const Send<Action>& send, StopToken, const Client<HistoryClient>& client, const Client<TextLookup>& lookup) {
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
  recompute(state);
  return {};
}

auto AppFeature::on(State& state, const Action::didFail& failed) const -> Effect<Action> {
  state.failure = failed.sentence;
  return {};
}

auto AppFeature::on(State& state, const Action::didStart&) const -> Effect<Action> {
  if (state.settings.reminders->isAny()) remind(state);
  return {};
}

auto AppFeature::on(State& state, const Action::settings& chosen) const -> Effect<Action> {
  if (isOfReminders(chosen.action)) remind(state);
  if (!isReadByStatistics(chosen.action)) return {};
  return reduce(state, Action::statistics{StatisticsFeature::Action::onAppear{}});  // where they read their settings
}

auto AppFeature::on(State& state, const Action::recompute&) const -> Effect<Action> {
  recompute(state);
  return {};
}

auto AppFeature::on(State& state, const Action::didChangeZone& changed) const -> Effect<Action> {
  std::string name = changed.zone;
  std::ranges::replace(name, '_', ' ');
  recompute(state);
  state.failure = filledIn(texts->text("Your time zone is now {1}. All times are shown in it; nothing was changed."),
                           {std::move(name)});
  return {};
}

auto AppFeature::on(State& state, const Action::didTapStart& tapped) const -> Effect<Action> {
  FastRecord begun{mivo::ongoingFast(uuid->next(), tapped.start, tapped.goalSeconds), {}};
  return writeOrSay(state, Step::start, addingFast(*state.fasts, std::move(begun), date->now()));
}

auto AppFeature::on(State& state, const Action::didTapStop& tapped) const -> Effect<Action> {
  auto outcome = stopping(*state.fasts, tapped.end, date->now());
  const bool isKept = !outcome || !outcome->addedFasts.empty();
  return writeOrSay(state, isKept ? Step::stop : Step::stopAtOnce, std::move(outcome));
}

auto AppFeature::on(State& state, const Action::didChangeStart& changed) const -> Effect<Action> {
  return writeOrSay(state, Step::edit, changingStart(*state.fasts, changed.start, date->now()));
}

auto AppFeature::on(State& state, const Action::didChangeGoal& changed) const -> Effect<Action> {
  setGoalSeconds(*userDefaults, changed.goalSeconds);
  state.nextGoalSeconds = changed.goalSeconds;
  if (!state.runningFast()) return {};
  return writeOrSay(state, Step::edit, changingGoal(*state.fasts, changed.goalSeconds, date->now()));
}

auto AppFeature::on(State& state, const Action::didTapEditFast& tapped) const -> Effect<Action> {
  const FastRecord* record = fastWithID(*state.fasts, tapped.id);
  if (record && record->fast.finished) state.draft = draftOf(*record);
  return {};
}

auto AppFeature::on(State& state, const Action::didTapAddFast&) const -> Effect<Action> {
  state.draft = newDraft(*state.fasts, uuid->next(), state.nextGoalSeconds, date->now());
  return {};
}

auto AppFeature::on(State& state, const Action::didChangeDraftStart& changed) const -> Effect<Action> {
  if (*state.draft) state.draft = withStart(**state.draft, changed.start);
  return {};
}

auto AppFeature::on(State& state, const Action::didChangeDraftEnd& changed) const -> Effect<Action> {
  if (*state.draft) state.draft = withEnd(**state.draft, changed.end);
  return {};
}

auto AppFeature::on(State& state, const Action::didChangeDraftGoal& changed) const -> Effect<Action> {
  if (*state.draft) state.draft = withGoal(**state.draft, changed.goalSeconds);
  return {};
}

auto AppFeature::on(State& state, const Action::didChangeDraftNote& changed) const -> Effect<Action> {
  if (*state.draft) state.draft = withNote(**state.draft, changed.note);
  return {};
}

// What is wrong with it is said beside its fields already.
auto AppFeature::on(State& state, const Action::didTapSaveDraft&) const -> Effect<Action> {
  if (!*state.draft || (*state.draft)->isSaving || faultOf(**state.draft, date->now())) return {};
  FastDraft draft = **state.draft;
  auto outcome = saving(draft, *state.fasts, date->now());
  if (outcome && outcome->isEmpty()) {
    state.draft = std::nullopt;
    return {};
  }
  draft.isSaving = outcome.has_value();
  draft.failure = outcome ? std::string{} : refusalText(outcome.error(), *texts);
  const Step step = draft.before ? Step::edit : Step::add;
  state.draft = std::move(draft);
  return outcome ? write(state, step, std::move(*outcome)) : Effect<Action>{};
}

auto AppFeature::on(State& state, const Action::didDismissDraft&) const -> Effect<Action> {
  if (*state.draft) state.draft = std::nullopt;
  return {};
}

auto AppFeature::on(State& state, const Action::didDeleteFast& deleted) const -> Effect<Action> {
  return writeOrSay(state, Step::remove, removingFast(*state.fasts, deleted.id));
}

auto AppFeature::on(State& state, const Action::didTapEditWeight& tapped) const -> Effect<Action> {
  const BodyWeightSample* sample = weightWithID(*state.weights, tapped.id);
  if (!sample) return {};
  const WeightUnit unit = state.statistics.addWeightLogState.weightUnit;
  state.editedWeight = EditedWeight{
      *sample, {.weightInKg = sample->weightInKg, .logDate = sample->date, .isDateChosen = true, .weightUnit = unit}};
  return {};
}

auto AppFeature::on(State& state, const Action::editedWeight& sent) const -> Effect<Action> {
  using Shown = PresentationAction<AddWeightLogFeature::Action>;
  const auto* shown = std::get_if<Shown::presented>(&sent.action);
  const auto* accepted = shown ? std::get_if<AddWeightLogFeature::Action::didAcceptSample>(&shown->action) : nullptr;
  return accepted && state.editedWeight ? saveEditedWeight(state, accepted->sample) : Effect<Action>{};
}

auto AppFeature::on(State& state, const Action::didDeleteWeight& deleted) const -> Effect<Action> {
  return writeOrSay(state, Step::removeWeight, removingWeight(*state.weights, deleted.id));
}

auto AppFeature::on(State& state, const Action::didConfirmOverlapRepair&) const -> Effect<Action> {
  if (!*state.overlapRepair) return {};
  HistoryChange change = **state.overlapRepair;
  state.overlapRepair = std::nullopt;
  return write(state, Step::repairOverlaps, std::move(change));
}

auto AppFeature::on(State& state, const Action::didCancelOverlapRepair&) const -> Effect<Action> {
  state.overlapRepair = std::nullopt;
  return {};
}

auto AppFeature::on(State& state, const Action::didTapMessage&) const -> Effect<Action> {
  if (!state.failure->empty()) return on(state, Action::didDismissMessages{});
  if (!*state.undo || (*state.undo)->isTaken) return {};
  UndoOffer offer = **state.undo;
  offer.isTaken = true;
  state.undo = offer;
  return write(state, Step::undo, std::move(offer.change));
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
  if (isOf(*state.draft, written.change)) state.draft = std::nullopt;
  if (isOf(state.editedWeight, written.change)) state.editedWeight = std::nullopt;
  if (written.step == Step::undo) state.undo = std::nullopt;
  if (offersUndo(written.step) && !written.change.isEmpty())
    state.undo = UndoOffer{written.step, inverse(written.change)};
  recompute(state);
  if (written.step == Step::addWeight) return tellWeightCard(state, AddWeightLogFeature::Action::didSave{});
  return didWriteData(state, written);
}

// Said where it was tried.
auto AppFeature::on(State& state, const Action::didFailToWrite& failed) const -> Effect<Action> {
  if (failed.step == Step::addWeight)
    return tellWeightCard(state, AddWeightLogFeature::Action::didFailToSave{failed.sentence});
  if (isOf(*state.draft, failed.change)) {
    FastDraft draft = **state.draft;
    draft.isSaving = false;
    draft.failure = failed.sentence;
    state.draft = std::move(draft);
    return {};
  }
  if (isOf(state.editedWeight, failed.change))
    return tellEditedWeight(state, AddWeightLogFeature::Action::didFailToSave{failed.sentence});
  if (isSaidWhereItWasTried(state, failed)) return {};
  if (failed.step == Step::undo && *state.undo) {
    UndoOffer offer = **state.undo;  // still to be had
    offer.isTaken = false;
    state.undo = std::move(offer);
  }
  state.failure = failed.sentence;
  return {};
}

// Those of the host that the cards show; the module reads its own.
void AppFeature::takeSettings(State& state) const {
  auto& goal = state.statistics.goalWeightCardState;
  auto& entry = state.statistics.addWeightLogState;
  settingsFeature.reduce(state.settings, SettingsFeature::Action::onAppear{});
  state.nextGoalSeconds = goalSeconds(*userDefaults);
  goal.goalInKg = goalWeight(*userDefaults);
  const auto unit = weightUnit(*userDefaults);
  if (!unit) return;
  if (*unit != entry.weightUnit) entry.typedText = std::nullopt;  // was meant in the unit before
  entry.weightUnit = *unit;
  goal.weightUnit = *unit;
}

// The card is told of the outcome too: it shows it.
auto AppFeature::saveWeight(State& state, const BodyWeightSample& sample) const -> Effect<Action> {
  const WeightUnit unit = state.statistics.addWeightLogState.weightUnit;
  auto outcome = addingWeight(*state.weights, sample, unit, *masses, date->now());
  if (outcome) return write(state, Step::addWeight, std::move(*outcome));
  const std::string sentence = refusalText(outcome.error(), *texts);
  if (!std::holds_alternative<IsSavedAlready>(outcome.error()))
    return tellWeightCard(state, AddWeightLogFeature::Action::didFailToSave{sentence});
  state.failure = sentence;
  return tellWeightCard(state, AddWeightLogFeature::Action::didSave{});
}

auto AppFeature::saveEditedWeight(State& state, const BodyWeightSample& accepted) const -> Effect<Action> {
  BodyWeightSample after = state.editedWeight->before;
  after.date = keepingSeconds(after.date, accepted.date);
  after.weightInKg = accepted.weightInKg;
  auto outcome = changingWeight(*state.weights, after, date->now());
  if (!outcome)
    return tellEditedWeight(state, AddWeightLogFeature::Action::didFailToSave{refusalText(outcome.error(), *texts)});
  if (!outcome->isEmpty()) return write(state, Step::editWeight, std::move(*outcome));
  state.editedWeight = std::nullopt;
  return {};
}

auto AppFeature::tellEditedWeight(State& state, AddWeightLogFeature::Action action) const -> Effect<Action> {
  return reduce(state,
                Action::editedWeight{PresentationAction<AddWeightLogFeature::Action>::presented{std::move(action)}});
}

auto AppFeature::tellWeightCard(State& state, AddWeightLogFeature::Action action) const -> Effect<Action> {
  return reduce(state, Action::statistics{StatisticsFeature::Action::addWeightLogAction{std::move(action)}});
}

auto AppFeature::writeOrSay(State& state, Step step, Outcome outcome) const -> Effect<Action> {
  if (!outcome) state.failure = refusalText(outcome.error(), *texts);
  return outcome && !outcome->isEmpty() ? write(state, step, std::move(*outcome)) : Effect<Action>{};
}

// What is told while it is written stays: where its backup went.
auto AppFeature::write(State& state, Step step, HistoryChange change) const -> Effect<Action> {
  state.failure = std::string{};
  return Effect<Action>::run(
      [](const Send<Action>& send, StopToken, const Client<HistoryClient>& client, const Client<TextLookup>& lookup,
         Step done, const HistoryChange& written) {
        try {
          client->apply(written);
        } catch (const std::exception& error) {
          return send(Action::didFailToWrite{done, written, faultText(error, *lookup)});
        }
        send(Action::didWrite{done, written});
      },
      history, texts, step, std::move(change));
}

void AppFeature::remind(State& state) const {
  if (const auto fault = keepReminding ? keepReminding(state.settings.reminders) : std::nullopt) state.failure = *fault;
}

void AppFeature::recompute(State& state) const {
  auto& screen = state.statistics;
  const Date present = date->now();
  screen.updateFastingChart(recomputed(screen.stats, *screen.fasts, screen.streakSettings, screen.timeRange, present));
  screen.updateWeightChart(StatsContainer::update(*state.weights));
  if (!screen.addWeightLogState.isDateChosen) screen.addWeightLogState.logDate = present;
  state.now = present;
}

std::string doneText(const AppFeature::UndoOffer& offer, const TextLookup& texts, const NumberFormatter& numbers) {
  switch (offer.step) {
    case Step::stop:
      return texts.text("Fast ended");
    case Step::stopAtOnce:
      return texts.text("Not kept: shorter than a minute");
    case Step::edit:
      return texts.text("Fast changed");
    case Step::add:
      return texts.text("Fast added");
    case Step::remove:
      return texts.text("Fast deleted");
    case Step::addWeight:
      return texts.text("Weight saved");
    case Step::editWeight:
      return texts.text("Weight changed");
    case Step::removeWeight:
      return texts.text("Weight deleted");
    case Step::repairOverlaps:
      return texts.text("Overlapping fasts fixed");
    case Step::addSeveral:
      return filledIn(texts.text("Added: {1}"),
                      {fastCountText(static_cast<std::int64_t>(offer.change.removedFasts.size()), texts, numbers)});
    case Step::importing: {
      const RecordCounts counts{static_cast<std::int64_t>(offer.change.removedFasts.size()),
                                static_cast<std::int64_t>(offer.change.removedWeights.size())};
      return filledIn(texts.text("Imported: {1}"), {shortCountText(counts, texts, numbers)});
    }
    case Step::restore:
      return texts.text("Backup restored");
    default:
      return {};
  }
}

}  // namespace mivo::host
