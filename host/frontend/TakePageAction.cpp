// SPDX-License-Identifier: MIT
// What is done on a page, as actions of the app.
#include <string>
#include <utility>

#include "host/frontend/Frontend.h"
#include "host/frontend/Pages.h"
#include "host/history/FieldRules.h"

namespace mivo::host {
namespace {

using Action = AppFeature::Action;
using Sent = StatisticsFeature::Action;
using Chosen = SettingsFeature::Action;
using Edit = PresentationAction<AddWeightLogFeature::Action>;
using Cases = PageAction::Cases;
using Done = tl::expected<void, std::string>;

constexpr auto largestGoalSeconds = static_cast<std::int64_t>(largestGoalHours * secondsPerHour);

/// Fails where a number is none of a choice.
template <class Case>
Done within(std::int64_t number, std::int64_t least, std::int64_t most) {
  if (number >= least && number <= most) return {};
  return tl::unexpected{std::string{typeName<Case>()} + ": expected a number from " + std::to_string(least) + " to " +
                        std::to_string(most)};
}

template <class Case>
Done placeIn(std::size_t place, std::size_t count) {
  const auto most = static_cast<std::int64_t>(count) - 1;
  return within<Case>(place < count ? static_cast<std::int64_t>(place) : most + 1, 0, most);
}

std::int64_t signedPlace(std::size_t place) { return static_cast<std::int64_t>(place); }

std::size_t rowsOf(const CardSettingsPage& page, CardGroup group) {
  return group == CardGroup::cards    ? page.cards.size()
         : group == CardGroup::charts ? page.charts.size()
                                      : page.trends.size();
}

GoalEntry next(const GoalEntry& entry, const GoalChoiceAction::Action& action) {
  using Goal = GoalChoiceAction::Cases;
  if (const auto* begun = std::get_if<Goal::didBegin>(&action)) return goalEntry(begun->seconds);
  if (const auto* picked = std::get_if<Goal::didPick>(&action)) return withUsualGoal(entry, picked->place);
  if (const auto* typed = std::get_if<Goal::didType>(&action)) return withTypedGoal(entry, typed->text);
  return withFieldOpen(entry);
}

std::optional<DateTimeEntry> next(const DateTimeEntry& entry, const DateChoiceAction::Action& action,
                                  const PageClients& clients) {
  using Choice = DateChoiceAction::Cases;
  if (const auto* begun = std::get_if<Choice::didBegin>(&action)) return dateTimeEntry(begun->date, clients);
  if (const auto* day = std::get_if<Choice::didTurnDay>(&action)) return withDay(entry, day->place);
  if (const auto* hour = std::get_if<Choice::didTurnHour>(&action)) return withHour(entry, hour->place);
  if (const auto* minute = std::get_if<Choice::didTurnMinute>(&action)) return withMinute(entry, minute->place);
  return withTyped(entry, std::get<Choice::didType>(action).text, clients);
}

void take(const LineChartAction::Action& action, KeptLineChart& chart) {
  if (const auto* scrolled = std::get_if<LineChartAction::Cases::didScroll>(&action))
    chart.didScroll(scrolled->leading);
  else
    chart.didTouch(std::get<LineChartAction::Cases::didTouch>(action).date);
}

}  // namespace

// What the app is told of goals it keeps as it is.
Done Frontend::take(Action action) {
  Done done;
  if (const auto* goal = std::get_if<Action::didChangeGoal>(&action))
    done = within<Action::didChangeGoal>(goal->goalSeconds, 0, largestGoalSeconds);
  if (const auto* settings = std::get_if<Action::settings>(&action))
    if (const auto* goal = std::get_if<Chosen::didChooseGoal>(&settings->action))
      done = within<Chosen::didChooseGoal>(goal->seconds, 0, largestGoalSeconds);
  return done ? sent(std::move(action)) : done;
}

Done Frontend::take(const PageAction::Action& action) {
  return std::visit([this](const auto& one) { return on(one); }, action);
}

Done Frontend::sent(Action action) {
  store.send(std::move(action));
  return {};
}

Done Frontend::chosen(SettingsFeature::Action action) { return sent(Action::settings{std::move(action)}); }

Done Frontend::on(const Cases::didTapFastingButton&) {
  const Date now = source.clients().now;
  if (source.fasting().running) return sent(Action::didTapStop{now});
  return sent(Action::didTapStart{now, source.fasting().nextGoalSeconds});
}

// A row may be tapped while it goes.
Done Frontend::on(const Cases::didTapFast& tapped) {
  const FastRecord* record = recordOf(source.history(), tapped.row);
  return record ? sent(Action::didTapEditFast{record->fast.id}) : Done{};
}

Done Frontend::on(const Cases::didDeleteFastOfRow& deleted) {
  const FastRecord* record = recordOf(source.history(), deleted.row);
  return record ? sent(Action::didDeleteFast{record->fast.id}) : Done{};
}

Done Frontend::on(const Cases::didDeleteEditedFast&) {
  const auto& draft = *state().draft;
  if (!draft || !draft->before) return {};
  const UUID id = draft->before->fast.id;
  store.send(Action::didDismissDraft{});
  return sent(Action::didDeleteFast{id});
}

Done Frontend::on(const Cases::didTapWeight& tapped) {
  const BodyWeightSample* sample = weightOf(state().weights, tapped.row);
  return sample ? sent(Action::didTapEditWeight{sample->id}) : Done{};
}

Done Frontend::on(const Cases::didDeleteWeightOfRow& deleted) {
  const BodyWeightSample* sample = weightOf(state().weights, deleted.row);
  return sample ? sent(Action::didDeleteWeight{sample->id}) : Done{};
}

Done Frontend::on(const Cases::didDeleteEditedWeight&) {
  if (!state().editedWeight) return {};
  const UUID id = state().editedWeight->before.id;
  store.send(Action::editedWeight{Edit::dismiss{}});
  return sent(Action::didDeleteWeight{id});
}

Done Frontend::on(const Cases::didChooseTimeRange& chosenRange) {
  if (auto done = placeIn<Cases::didChooseTimeRange>(chosenRange.place, allTimeRanges.size()); !done) return done;
  return sent(
      Action::statistics{Sent::binding{Write<&StatisticsFeature::State::timeRange>{allTimeRanges[chosenRange.place]}}});
}

Done Frontend::on(const Cases::didDismissTip&) {
  if (const auto& shown = *state().statistics.currentTipID) services.tips->dismiss(*shown);
  source.tip = nextStamp();
  return {};
}

Done Frontend::on(const Cases::didSeeFastingBars& seenBars) {
  source.seenFastingBars = BarRange{seenBars.first, seenBars.last};
  return {};
}

Done Frontend::on(const Cases::didSeeEatingBars& seenBars) {
  source.seenEatingBars = BarRange{seenBars.first, seenBars.last};
  return {};
}

Done Frontend::on(const Cases::weightChart& sentToChart) {
  source.weightChart();
  host::take(sentToChart.action, source.weights);
  return {};
}

Done Frontend::on(const Cases::weightFastingChart& sentToChart) {
  source.weightFastingChart();
  host::take(sentToChart.action, source.weightsAndFasting);
  return {};
}

Done Frontend::on(const Cases::goalChoice& made) {
  if (const auto* begun = std::get_if<GoalChoiceAction::Cases::didBegin>(&made.action))
    if (auto done = within<GoalChoiceAction::Cases::didBegin>(begun->seconds, 0, largestGoalSeconds); !done)
      return done;
  source.goal = next(source.goal, made.action);
  return {};
}

Done Frontend::on(const Cases::dateChoice& made) {
  const auto entry = next(source.date, made.action, source.clients());
  source.isDateRefused = !entry;
  if (entry) source.date = *entry;
  return {};
}

Done Frontend::on(const Cases::roadmap& tapped) {
  if (source.roadmap) source.roadmap->send(tapped.action);
  return {};
}

Done Frontend::on(const Cases::didTypeIdea& typed) {
  source.idea = Idea{typed.idea, typed.replyTo};
  return {};
}

Done Frontend::on(const Cases::didFindNoMailProgram&) {
  return sent(Action::didFail{noMailProgramText(source.texts())});
}

// Another one may be due by now.
Done Frontend::on(const Cases::didTellReminder& shown) {
  const auto next = nextReminderOf(source);
  if (!next || composeDueReminder(next, source.clients()).id != shown.id) return {};
  setToldFast(*source.dependencies().userDefaults, next->kind, next->fast);
  source.told = nextStamp();
  return {};
}

Done Frontend::on(const Cases::didExportRow& wanted) {
  const auto sheet = composeExportSheet(state().printsWeights, source.clients());
  if (auto done = placeIn<Cases::didExportRow>(wanted.row, sheet.rows.size()); !done) return done;
  return sent(Action::didExport{exportedPartAt(wanted.row), wanted.path});
}

Done Frontend::on(const Cases::didChooseWeightUnit& made) {
  const auto page = composeSettings(settingsFactsOf(source), source.clients());
  if (auto done = placeIn<Cases::didChooseWeightUnit>(made.place, page.weightUnit.options.size()); !done) return done;
  return chosen(Chosen::didChooseWeightUnit{weightUnitAt(signedPlace(made.place))});
}

Done Frontend::on(const Cases::didChooseFirstWeekday& made) {
  const auto page = composeSettings(settingsFactsOf(source), source.clients());
  if (auto done = placeIn<Cases::didChooseFirstWeekday>(made.place, page.firstWeekday.options.size()); !done)
    return done;
  return chosen(Chosen::didChooseFirstWeekday{weekdayAt(signedPlace(made.place))});
}

Done Frontend::on(const Cases::didChooseLanguage& made) {
  const auto page = composeSettings(settingsFactsOf(source), source.clients());
  if (auto done = placeIn<Cases::didChooseLanguage>(made.place, page.language.options.size()); !done) return done;
  return chosen(Chosen::didChooseLanguage{languageAt(signedPlace(made.place))});
}

Done Frontend::on(const Cases::didChooseAppearance& made) {
  const auto page = composeSettings(settingsFactsOf(source), source.clients());
  if (auto done = placeIn<Cases::didChooseAppearance>(made.place, page.appearance.options.size()); !done) return done;
  return chosen(Chosen::didChooseAppearanceMode{appearanceModeAt(signedPlace(made.place))});
}

Done Frontend::on(const Cases::didChooseTextSize& made) {
  const auto sizes = composeSettings(settingsFactsOf(source), source.clients()).textSize;
  if (auto done = within<Cases::didChooseTextSize>(made.percent, sizes.least, sizes.most); !done) return done;
  return chosen(Chosen::didChooseTextScale{static_cast<double>(made.percent) / 100});
}

Done Frontend::on(const Cases::didToggleCard& toggledRow) {
  const auto& shown = state().statistics;
  const auto page = composeCardSettings(shown.dashboardSettings, shown.streakSettings, source.clients());
  if (auto done = placeIn<Cases::didToggleCard>(toggledRow.row, rowsOf(page, toggledRow.group)); !done) return done;
  return chosen(
      Chosen::didChooseCards{toggled(shown.dashboardSettings, toggledRow.group, signedPlace(toggledRow.row))});
}

Done Frontend::on(const Cases::didChooseCounted& made) {
  const auto& shown = state().statistics;
  const auto page = composeCardSettings(shown.dashboardSettings, shown.streakSettings, source.clients());
  if (auto done = placeIn<Cases::didChooseCounted>(made.place, page.counted.options.size()); !done) return done;
  return chosen(Chosen::didChooseCountingEntity{countingEntityAt(signedPlace(made.place))});
}

Done Frontend::on(const Cases::didChooseLongestBreak& made) {
  const auto& shown = state().statistics;
  const auto hours = composeCardSettings(shown.dashboardSettings, shown.streakSettings, source.clients()).longestBreak;
  if (auto done = within<Cases::didChooseLongestBreak>(made.hours, hours.least, hours.most); !done) return done;
  return chosen(Chosen::didChooseLongestBreak{made.hours});
}

Done Frontend::on(const Cases::didChooseEatingWindow& made) {
  const auto page = composeReminders(state().settings.reminders, source.clients());
  if (auto done = placeIn<Cases::didChooseEatingWindow>(made.place, page.eatingWindow.options.size()); !done)
    return done;
  return chosen(Chosen::didChooseEatingWindow{eatingWindowHoursAt(signedPlace(made.place))});
}

}  // namespace mivo::host
