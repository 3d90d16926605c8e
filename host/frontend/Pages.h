// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

#include "host/frontend/ChoicePages.h"
#include "host/frontend/PageSource.h"
#include "host/frontend/StatisticsPage.h"
#include "host/pages/BackupsPage.h"
#include "host/pages/BrowserWords.h"
#include "host/pages/CardSettingsPage.h"
#include "host/pages/ControlWords.h"
#include "host/pages/DueReminder.h"
#include "host/pages/ExportSheet.h"
#include "host/pages/FastSheet.h"
#include "host/pages/HealthSheet.h"
#include "host/pages/Message.h"
#include "host/pages/OpenScreens.h"
#include "host/pages/PrintedCards.h"
#include "host/pages/RemindersPage.h"
#include "host/pages/RepairSheet.h"
#include "host/pages/SettingsPage.h"
#include "host/pages/SeveralFastsSheet.h"
#include "host/pages/WeightsPage.h"
#include "mivo/achievements/BadgesPage.h"
#include "mivo/roadmap/FeedbackSheet.h"
#include "mivo/roadmap/RoadmapPage.h"
#include "mivo/statistics/AddWeightForm.h"
#include "mivo/statistics/DonationsPage.h"
#include "mivo/statistics/GoalWeightSheet.h"

namespace mivo::host {

// Every page by its name: what of the state it reads, and how it is composed.

using ReadStamps = void (*)(const PageSource&, std::vector<Stamp>&);

/// A page, and the record that it is.
template <class Record>
struct Page {
  std::string_view name;
  ReadStamps read;  ///< other stamps: it may read differently
  std::optional<Record> (*compose)(const PageSource&);
};

/// One that need not be there: nothing to compose it of, and it stays as it was last.
template <class Record>
struct Sheet : Page<Record> {};

/// A list, and the records or texts that it has.
template <class Row>
struct PageList {
  std::string_view name;
  ReadStamps read;
  std::size_t (*count)(const PageSource&);
  Row (*row)(const PageSource&, std::size_t place);
};

// What pages read. The time of the last recomputation belongs to it: texts say "Today".

inline void readsNothing(const PageSource&, std::vector<Stamp>&) {}

template <auto... members>
void reads(const PageSource& source, std::vector<Stamp>& stamps) {
  (collectStamps(source.state.*members, stamps), ...);
  stamps.push_back(source.state.now.stamp());
}

template <auto... members>
void readsStatistics(const PageSource& source, std::vector<Stamp>& stamps) {
  (collectStamps(source.state.statistics.*members, stamps), ...);
  stamps.push_back(source.state.now.stamp());
}

template <auto... members>
void readsSource(const PageSource& source, std::vector<Stamp>& stamps) {
  (stamps.push_back((source.*members).stamp()), ...);
}

/// Which screen is open as well.
inline void readsAll(const PageSource& source, std::vector<Stamp>& stamps) {
  collectStamps(source.state, stamps);
  stamps.push_back(source.state.screen.stamp());
}

inline void readsCards(const PageSource& source, std::vector<Stamp>& stamps) {
  collectStamps(source.state.statistics, stamps);
  stamps.push_back(source.state.now.stamp());
  stamps.push_back(source.state.printsWeights.stamp());
  stamps.push_back(source.tip.stamp());
}

/// What is selected and where it is scrolled to as well.
template <ScrollChartFeature::State StatsContainer::* chart, auto seen>
void readsChart(const PageSource& source, std::vector<Stamp>& stamps) {
  fields(source.state.statistics.stats.*chart,
         [&stamps](std::string_view, const auto& field) { stamps.push_back(field.stamp()); });
  stamps.push_back((source.*seen).stamp());
}

template <ScrollChartFeature::State StatsContainer::* chart>
void readsBars(const PageSource& source, std::vector<Stamp>& stamps) {
  const auto& state = source.state.statistics.stats.*chart;
  stamps.insert(stamps.end(), {state.data.stamp(), state.maxTime.stamp(), source.day()});
}

template <KeptLineChart PageSource::* chart>
void readsLines(const PageSource& source, std::vector<Stamp>& stamps) {
  collectStamps(source.state.statistics.stats, stamps);
  stamps.insert(stamps.end(), {source.state.statistics.timeRange.stamp(), source.state.now.stamp(),
                               source.state.statistics.goalWeightCardState.weightUnit.stamp(), (source.*chart).stamp(),
                               source.day()});
}

inline void readsHistoryRows(const PageSource& source, std::vector<Stamp>& stamps) {
  stamps.insert(stamps.end(), {source.historyStamp(), source.day()});
}

inline void readsWeightRows(const PageSource& source, std::vector<Stamp>& stamps) {
  stamps.insert(stamps.end(), {source.state.weights.stamp(),
                               source.state.statistics.addWeightLogState.weightUnit.stamp(), source.day()});
}

inline void readsFasting(const PageSource& source, std::vector<Stamp>& stamps) {
  reads<&AppFeature::State::fasts, &AppFeature::State::nextGoalSeconds>(source, stamps);
  stamps.push_back(source.tick.stamp());
}

inline void readsReminder(const PageSource& source, std::vector<Stamp>& stamps) {
  reads<&AppFeature::State::fasts, &AppFeature::State::settings>(source, stamps);
  stamps.insert(stamps.end(), {source.told.stamp(), source.day()});
}

inline void readsChoices(const PageSource& source, std::vector<Stamp>& stamps) {
  readsSource<&PageSource::goal, &PageSource::date, &PageSource::isDateRefused>(source, stamps);
  reads<&AppFeature::State::fasts, &AppFeature::State::draft>(source, stamps);
}

inline void readsRoadmap(const PageSource& source, std::vector<Stamp>& stamps) {
  if (source.roadmap) collectStamps(source.roadmap->state(), stamps);
}

inline void readsDays(const PageSource& source, std::vector<Stamp>& stamps) {
  stamps.insert(stamps.end(), {source.date.stamp(), source.day()});
}

// What takes more than one call. Nothing, where there is nothing to compose it of.

using Source = const PageSource&;

LineChartPage lineChartPage(Source source, const drawing::LineChart& chart, const KeptLineChart& kept);
std::optional<BadgesPage> badgesPage(Source source);
std::optional<DonationsPage> donationsPage(Source source);
std::optional<RoadmapPage> roadmapPage(Source source);
std::optional<RepairSheet> repairSheet(Source source);
std::optional<AddWeightForm> editedWeightForm(Source source);
std::optional<FastSheet> editedFastSheet(Source source);
std::optional<SeveralFastsSheet> severalFastsSheet(Source source);
std::optional<RestoreSheet> restoreSheet(Source source);
MailPage mailPage(Source source);
std::optional<Reminder> nextReminderOf(Source source);
DateChoicePage dateChoicePage(Source source);
SettingsFacts settingsFactsOf(Source source);
/// What is wrong with the goal of the fast that is edited.
std::string goalProblem(Source source);
TableRow barRow(Source source, const ScrollChartFeature::State& chart, std::size_t place);
TableRow pointRow(Source source, const drawing::LineChart& chart, std::size_t place);
inline const auto& fastingBars(Source source) { return source.state.statistics.stats.fastingChartState; }
inline const auto& eatingBars(Source source) { return source.state.statistics.stats.eatingChartState; }

using AppState = AppFeature::State;
using Shown = StatisticsFeature::State;

inline constexpr std::tuple pages{
    Page<ControlWords>{"words", readsNothing, [](Source s) { return std::optional{controlWords(s.texts())}; }},
    Page<BrowserWords>{"browser", readsNothing,
                       [](Source s) { return std::optional{browserWords(s.dependencies().languageTag, s.texts())}; }},
    Page<OpenScreens>{"screens", readsAll, [](Source s) { return std::optional{composeOpenScreens(s.state)}; }},
    Page<Message>{
        "message", reads<&AppState::failure, &AppState::undo>,
        [](Source s) { return std::optional{composeMessage(s.state, s.texts(), *s.dependencies().numberFormatter)}; }},
    Page<Appearance>{"appearance", reads<&AppState::settings>,
                     [](Source s) { return std::optional{*s.state.settings.appearance}; }},
    Page<StatisticsPage>{"statistics", readsCards, [](Source s) { return std::optional{statisticsPage(s.cards())}; }},
    Page<StatisticsPage>{"printedStatistics", readsCards,
                         [](Source s) {
                           return std::optional{statisticsPage(printedCards(
                               s.cards(), s.state.printsWeights ? PrintedWeights::shown : PrintedWeights::hidden))};
                         }},
    Page<DayBarsPage>{"fastingChart", readsChart<&StatsContainer::fastingChartState, &PageSource::seenFastingBars>,
                      [](Source s) {
                        return std::optional{composeDayBars(s.state.statistics.stats.fastingChartState,
                                                            s.seenFastingBars, s.barClients())};
                      }},
    Page<DayBarsPage>{"eatingChart", readsChart<&StatsContainer::eatingChartState, &PageSource::seenEatingBars>,
                      [](Source s) {
                        return std::optional{composeDayBars(s.state.statistics.stats.eatingChartState, s.seenEatingBars,
                                                            s.barClients())};
                      }},
    Page<LineChartPage>{"weightChart", readsLines<&PageSource::weights>,
                        [](Source s) { return std::optional{lineChartPage(s, s.weightChart(), s.weights)}; }},
    Page<LineChartPage>{
        "weightFastingChart", readsLines<&PageSource::weightsAndFasting>,
        [](Source s) { return std::optional{lineChartPage(s, s.weightFastingChart(), s.weightsAndFasting)}; }},
    Page<AddWeightForm>{
        "addWeight", readsStatistics<&Shown::addWeightLogState>,
        [](Source s) { return std::optional{composeAddWeight(s.state.statistics.addWeightLogState, s.clients())}; }},
    Page<GoalWeightSheet>{"goalWeight", readsStatistics<&Shown::goalWeightCardState>,
                          [](Source s) {
                            return std::optional{composeGoalWeightSheet(s.state.statistics.goalWeightCardState,
                                                                        s.texts(), *s.dependencies().numberFormatter,
                                                                        *s.dependencies().massFormatter)};
                          }},
    Sheet<BadgesPage>{"badges", reads<&AppState::statistics>, badgesPage},
    Sheet<DonationsPage>{"donations", readsStatistics<&Shown::destination>, donationsPage},
    Sheet<RoadmapPage>{"roadmap", readsRoadmap, roadmapPage},
    Page<FeedbackSheet>{"feedback", readsNothing, [](Source s) { return std::optional{composeFeedback(s.texts())}; }},
    Page<MailPage>{"mail", readsSource<&PageSource::idea>, [](Source s) { return std::optional{mailPage(s)}; }},
    Sheet<RepairSheet>{"repair", reads<&AppState::overlapRepair>, repairSheet},
    Page<WeightsPage>{"weights", reads<&AppState::weights>,
                      [](Source s) { return std::optional{composeWeightsPage(s.state.weights, s.texts())}; }},
    Sheet<AddWeightForm>{"editedWeight", reads<&AppState::editedWeight>, editedWeightForm},
    Page<FastingPage>{"fasting", readsFasting,
                      [](Source s) { return std::optional{composeFastingPage(s.fasting(), s.clients())}; }},
    Page<HistoryPage>{"history", reads<&AppState::fasts>,
                      [](Source s) { return std::optional{composeHistoryPage(s.history(), s.clients())}; }},
    Sheet<FastSheet>{"editedFast", reads<&AppState::draft, &AppState::fasts>, editedFastSheet},
    Sheet<SeveralFastsSheet>{"severalFasts", reads<&AppState::importing>, severalFastsSheet},
    Page<GoalChoice>{"goalChoice", readsChoices,
                     [](Source s) { return std::optional{composeGoalChoice(s.goal, goalProblem(s), s.clients())}; }},
    Page<DateChoicePage>{"dateChoice", readsChoices, [](Source s) { return std::optional{dateChoicePage(s)}; }},
    Page<SettingsPage>{"settings", readsAll,
                       [](Source s) { return std::optional{composeSettings(settingsFactsOf(s), s.clients())}; }},
    Page<CardSettingsPage>{"cards", readsStatistics<&Shown::dashboardSettings, &Shown::streakSettings>,
                           [](Source s) {
                             return std::optional{composeCardSettings(s.state.statistics.dashboardSettings,
                                                                      s.state.statistics.streakSettings, s.clients())};
                           }},
    Page<RemindersPage>{
        "reminders", reads<&AppState::settings>,
        [](Source s) { return std::optional{composeReminders(s.state.settings.reminders, s.clients())}; }},
    Page<DueReminder>{"reminder", readsReminder,
                      [](Source s) { return std::optional{composeDueReminder(nextReminderOf(s), s.clients())}; }},
    Page<AboutPage>{
        "about", readsNothing,
        [](Source s) { return std::optional{composeAbout(s.services.about, s.services.libraries, s.texts())}; }},
    Page<ImportSheet>{"import", readsAll, [](Source s) { return std::optional{s.importSheet()}; }},
    Page<ExportSheet>{"export", readsAll,
                      [](Source s) { return std::optional{composeExportSheet(s.state.printsWeights, s.clients())}; }},
    Page<HealthSheet>{"health", reads<&AppState::health>,
                      [](Source s) { return std::optional{composeHealthSheet(s.state.health, s.texts())}; }},
    Page<BackupsPage>{"backups", reads<&AppState::backups>,
                      [](Source s) { return std::optional{composeBackupsPage(s.state.backups, s.clients())}; }},
    Sheet<RestoreSheet>{"restore", readsAll, restoreSheet}};

inline constexpr std::tuple lists{
    PageList<HistoryRow>{
        "historyRows", readsHistoryRows, [](Source s) -> std::size_t { return s.history().places.size(); },
        [](Source s, std::size_t place) { return composeHistoryRow(s.history(), place, s.clients()); }},
    PageList<std::string>{"historySpoken", readsHistoryRows,
                          [](Source s) -> std::size_t { return s.history().places.size(); },
                          [](Source s, std::size_t place) { return historySpoken(s.history(), place, s.clients()); }},
    PageList<HistoryMonth>{"historyMonths", readsHistoryRows,
                           [](Source s) -> std::size_t { return s.historyMonths().size(); },
                           [](Source s, std::size_t place) { return s.historyMonths()[place]; }},
    PageList<WeightRow>{"weightRows", readsWeightRows, [](Source s) -> std::size_t { return s.state.weights->size(); },
                        [](Source s, std::size_t place) {
                          return composeWeightRow(*weightOf(s.state.weights, place),
                                                  s.state.statistics.addWeightLogState.weightUnit, s.clients());
                        }},
    PageList<std::string>{
        "weightsSpoken", readsWeightRows, [](Source s) -> std::size_t { return s.state.weights->size(); },
        [](Source s, std::size_t place) {
          return weightsSpoken(s.state.weights, place, s.state.statistics.addWeightLogState.weightUnit, s.clients());
        }},
    PageList<DayBarRow>{"fastingBars", readsBars<&StatsContainer::fastingChartState>,
                        [](Source s) -> std::size_t { return fastingBars(s).data->size(); },
                        [](Source s, std::size_t place) { return dayBarRow(fastingBars(s), place); }},
    PageList<DayBarRow>{"eatingBars", readsBars<&StatsContainer::eatingChartState>,
                        [](Source s) -> std::size_t { return eatingBars(s).data->size(); },
                        [](Source s, std::size_t place) { return dayBarRow(eatingBars(s), place); }},
    PageList<TableRow>{"fastingTable", readsBars<&StatsContainer::fastingChartState>,
                       [](Source s) -> std::size_t { return fastingBars(s).data->size(); },
                       [](Source s, std::size_t place) { return barRow(s, fastingBars(s), place); }},
    PageList<TableRow>{"eatingTable", readsBars<&StatsContainer::eatingChartState>,
                       [](Source s) -> std::size_t { return eatingBars(s).data->size(); },
                       [](Source s, std::size_t place) { return barRow(s, eatingBars(s), place); }},
    PageList<drawing::LinePoint>{"weightPoints", readsLines<&PageSource::weights>,
                                 [](Source s) -> std::size_t { return s.weightChart().rowCount(); },
                                 [](Source s, std::size_t place) { return linePoint(s.weightChart(), place); }},
    PageList<drawing::LinePoint>{"weightFastingPoints", readsLines<&PageSource::weightsAndFasting>,
                                 [](Source s) -> std::size_t { return s.weightFastingChart().rowCount(); },
                                 [](Source s, std::size_t place) { return linePoint(s.weightFastingChart(), place); }},
    PageList<TableRow>{"weightTable", readsLines<&PageSource::weights>,
                       [](Source s) -> std::size_t { return s.weightChart().rowCount(); },
                       [](Source s, std::size_t place) { return pointRow(s, s.weightChart(), place); }},
    PageList<TableRow>{"weightFastingTable", readsLines<&PageSource::weightsAndFasting>,
                       [](Source s) -> std::size_t { return s.weightFastingChart().rowCount(); },
                       [](Source s, std::size_t place) { return pointRow(s, s.weightFastingChart(), place); }},
    PageList<std::string>{
        "days", readsDays, [](Source) { return static_cast<std::size_t>(dayCount()); },
        [](Source s, std::size_t place) { return dayTextOf(s.date, static_cast<int>(place), s.clients()); }},
    PageList<std::string>{
        "hours", readsDays, [](Source) -> std::size_t { return 24; },
        [](Source s, std::size_t place) { return hourTextOf(s.date, static_cast<int>(place), s.clients()); }},
    PageList<std::string>{"minutes", readsNothing, [](Source) -> std::size_t { return 60; },
                          [](Source s, std::size_t place) {
                            return twoDigits(static_cast<std::int64_t>(place), *s.dependencies().numberFormatter);
                          }},
    PageList<std::string>{
        "percentTexts", readsNothing, [](Source) -> std::size_t { return 201; },
        [](Source s, std::size_t place) { return percentText(static_cast<std::int64_t>(place), s.clients()); }},
    PageList<std::string>{
        "hourTexts", readsNothing, [](Source) -> std::size_t { return 1001; },
        [](Source s, std::size_t place) { return hoursText(static_cast<std::int64_t>(place), s.clients()); }}};

}  // namespace mivo::host
