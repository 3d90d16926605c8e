// SPDX-License-Identifier: MIT
#include "AppModel.h"

#include <QtCore/QUrl>
#include <QtCore/QUrlQuery>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtGui/QGuiApplication>
#include <cmath>

#include "app/bridge/EngineModels.h"
#include "app/bridge/Stamps.h"
#include "host/app/CurrentTipFacts.h"
#include "host/database/FaultText.h"
#include "host/fasting/Fasting.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/ComposeScreen.h"
#include "mivo/statistics/LineCharts.h"
#include "mivo/statistics/ScreenInput.h"

namespace mivo::app {
namespace {

using Sent = StatisticsFeature::Action;
using Destination = StatisticsFeature::Destination;

constexpr std::chrono::seconds untilLookedAround{2};

drawing::DayBarsClients barClients(const Dependencies& dependencies) {
  return {*dependencies.dateIntervalFormatter, *dependencies.hourMinDurationUnitFormatter,
          *dependencies.hourDurationUnitFormatter};
}

}  // namespace

AppModel::AppModel(AppServices given)
    : services{std::move(given)},
      dependencies{*services.dependencies},
      texts{*dependencies.texts},
      clients{[present = services.dependencies] { return pageClients(*present, present->date->now()); }},
      store{State::make(services.timeRange, services.usualWeightUnit),
            host::AppFeature{.history = services.history, .files = services.files, .linkedHealth = services.health},
            dependencies.mainQueue, dependencies.taskRunner},
      fastingBars{store.state().statistics.stats.fastingChartState, barClients(dependencies),
                  [this](DayBarsModel::Action action) { sendStatistics(Sent::fastingChartAction{std::move(action)}); }},
      eatingBars{store.state().statistics.stats.eatingChartState, barClients(dependencies),
                 [this](DayBarsModel::Action action) { sendStatistics(Sent::eatingChartAction{std::move(action)}); }},
      weightLine{drawing::WeightChart{}, lineChartsHaveHeaders(dependencies.platformVersion), clients},
      pairLine{WeightFastingChart{}, lineChartsHaveHeaders(dependencies.platformVersion), clients},
      weightEntry{
          [this](AddWeightModel::Action action) { sendStatistics(Sent::addWeightLogAction{std::move(action)}); }},
      allWeights{clients, [this](Action action) { send(std::move(action)); }},
      runningFast{clients, [this](Action action) { send(std::move(action)); }},
      donationSheet{[this](DonationsFeature::Action action) {
        using Shown = PresentationAction<Destination::Action>;
        sendStatistics(Sent::destination{Shown::presented{Destination::Action::donations{std::move(action)}}});
      }},
      overlapRepair{clients, [this](Action action) { send(std::move(action)); }},
      chosenSettings{clients,
                     dependencies,
                     services.calendar,
                     *services.appearance,
                     services.about,
                     [this] { send(Action::didChangeSettings{}); },
                     [this] { keepReminding(); }},
      importSheet{clients, [this](Action action) { send(std::move(action)); }},
      severalFastsSheet{clients, [this](Action action) { send(std::move(action)); }},
      exportSheet{clients, [this](Action action) { send(std::move(action)); }},
      healthSheet{texts, [this](Action action) { send(std::move(action)); }},
      allBackups{clients, [this](Action action) { send(std::move(action)); }} {
  feedbackTexts.show(composeFeedback(texts));
  following = store.observe([this](const State& state) { follow(state); });
  load();
  watchTime();
}

AppModel* AppModel::create(QQmlEngine* engine, QJSEngine*) { return modelOf<AppModel>(*engine); }

void AppModel::load() {
  try {
    seenVersion = services.history->version();
    send(Action::didLoad{services.history->load()});
  } catch (const std::exception& error) {
    send(Action::didFail{host::faultText(error, texts)});
  }
}

// A running fast moves the figures, another program may write into the same database, and people travel.
void AppModel::watchTime() {
  nextMinute.setSingleShot(true);
  connect(&nextMinute, &QTimer::timeout, this, [this] {
    if (!watched) lookAround();
    send(Action::recompute{});
    waitForNextMinute();
  });
  waitForNextMinute();
  connect(&watch, &QTimer::timeout, this, &AppModel::lookAround);
  watch.start(untilLookedAround);
}

// The clock's minutes, so that a day goes when it ends. From what was computed: the timer may come a moment too early,
// and a clock read anew may be past the minute that the statistics have not seen.
void AppModel::waitForNextMinute() {
  nextMinute.start(static_cast<int>(std::ceil(host::untilNextMinute(store.state().now) * 1000)) + 1);
}

void AppModel::setWatched(bool isNow) {
  if (std::exchange(watched, isNow) == isNow) return;
  if (isNow) {
    lookAround();
    appear();
    watch.start(untilLookedAround);
  } else {
    watch.stop();
  }
  Q_EMIT watchedChanged();
}

void AppModel::lookAround() {
  lookForOtherPrograms();
  followZone();
}

void AppModel::lookForOtherPrograms() {
  try {
    if (std::exchange(seenVersion, services.history->version()) != seenVersion) send(Action::reload{});
  } catch (const std::exception& error) {
    send(Action::didFail{host::faultText(error, texts)});
  }
}

// Every text of a date is another one then; no record is.
void AppModel::followZone() {
  const auto zone = services.followZone ? services.followZone() : std::nullopt;
  if (!zone) return;
  send(Action::recompute{});
  runningFast.retell();
  allWeights.retell();
  say(filledIn(texts.text("Your time zone is now {1}. All times are shown in it; nothing was changed."),
               {qString(*zone).replace(QLatin1Char{'_'}, QLatin1Char{' '}).toStdString()}));
}

void AppModel::keepReminding() {
  if (const auto fault = services.keepReminding ? services.keepReminding() : std::nullopt) say(*fault);
}

void AppModel::say(const std::string& sentence) {
  if (!sentence.empty()) send(Action::didFail{sentence});
}

void AppModel::follow(const State& state) {
  const auto& statistics = state.statistics;
  fastingBars.follow(statistics.stats.fastingChartState);
  eatingBars.follow(statistics.stats.eatingChartState);
  if (auto stamps = stampsOf(state); stamps != seen) {
    seen = std::move(stamps);
    followPages(state);
  }
  followScreens(state);
}

void AppModel::followPages(const State& state) {
  const auto& statistics = state.statistics;
  tellTips(state);
  auto composed = composeScreen(screenInput(statistics), screenFormatters());
  cards.show(services.printed ? host::printedCards(std::move(composed), *services.printed) : std::move(composed));
  const WeightUnit unit = statistics.goalWeightCardState.weightUnit;
  weightLine.show(drawing::WeightChart{weightLogs(statistics.stats, statistics.timeRange), statistics.timeRange}, unit,
                  state.now);
  pairLine.show(mivo::weightFastingChart(statistics.stats, statistics.timeRange), unit, state.now);
  weightEntry.show(composeAddWeight(statistics.addWeightLogState, clients()));
  allWeights.follow(state);
  runningFast.follow(state);
  overlapRepair.follow(state.overlapRepair);
  chosenSettings.follow(state);
  importSheet.follow(state);
  severalFastsSheet.follow(state);
  healthSheet.follow(state);
  allBackups.follow(state);
  goalWeight.show(composeGoalWeightSheet(statistics.goalWeightCardState, texts, *dependencies.numberFormatter,
                                         *dependencies.massFormatter));
  said.show(host::composeMessage(state, texts, *dependencies.numberFormatter));
  followDestination(statistics);
}

void AppModel::followDestination(const StatisticsFeature::State& state) {
  const auto& destination = state.destination;
  if (!destination) return;
  if (const auto* shown = std::get_if<Destination::State::badges>(&*destination))
    badgeSummary.show(
        composeBadges(shown->state, state.streakSettings->countingEntity, texts, *dependencies.numberFormatter));
  if (const auto* shown = std::get_if<Destination::State::donations>(&*destination))
    donationSheet.show(composeDonations(shown->state, texts));
}

void AppModel::followScreens(const State& state) {
  const host::Screen now = openScreen(state);
  if (now == opened) return;
  const bool wasRoadmap = opened && standsOn(*opened, host::Screen::roadmap);
  opened = now;
  if (!wasRoadmap && standsOn(now, host::Screen::roadmap)) {
    features = std::make_unique<RoadmapModel>(dependencies);
    Q_EMIT roadmapChanged();
  }
  importSheet.follow(state);
  severalFastsSheet.follow(state);
  exportSheet.follow(state);
  openScreens.show(composeOpenScreens(state));
}

void AppModel::tellTips(const State& state) const {
  services.tips->setFacts(host::currentTipFacts(state, RoadmapVotes{dependencies.userDefaults}));
  if (const auto& shown = *state.statistics.currentTipID) services.tips->didShow(*shown);
}

QString AppModel::failure() const { return qString(store.state().failure); }

void AppModel::present(const QString& name) {
  send(Action::didOpen{host::screenFrom(name.toStdString()).value_or(tabOf(openScreen(state())))});
}

void AppModel::close(const QString& name) {
  if (const auto screen = host::screenFrom(name.toStdString())) send(Action::didClose{*screen});
}

void AppModel::chooseTimeRange(int index) {
  sendStatistics(Sent::binding{Write<&StatisticsFeature::State::timeRange>{static_cast<TimeRange>(index)}});
}

void AppModel::dismissTip() {
  if (const auto& shown = *store.state().statistics.currentTipID) services.tips->dismiss(*shown);
  seen.clear();
  follow(store.state());
}

void AppModel::openGoalWeight() {
  sendStatistics(Sent::goalWeightCardAction{GoalWeightCardFeature::Action::didOpenGoal{}});
}

void AppModel::setGoalWeight(const QString& text) {
  sendStatistics(Sent::goalWeightCardAction{GoalWeightCardFeature::Action::didTypeGoal{text.toStdString()}});
}

bool AppModel::canSend(const QString& idea) const { return isIdea(idea.toStdString()); }

bool AppModel::sendFeedback(const QString& idea, const QString& replyTo) {
  const QString body = qString(feedbackMessage(idea.toStdString(), replyTo.toStdString()));
  QUrl mail{QStringLiteral("mailto:") + qString(services.feedbackAddress)};
  QUrlQuery fields;
  fields.addQueryItem(QStringLiteral("subject"), QStringLiteral("Mivo"));
  fields.addQueryItem(QStringLiteral("body"), QString::fromUtf8(QUrl::toPercentEncoding(body)));
  mail.setQuery(fields);
  if (!services.feedbackAddress.empty() && QDesktopServices::openUrl(mail)) return true;
  copy(body);
  say(texts.text("No mail program took your idea. It is on the clipboard now."));
  return false;
}

void AppModel::copy(const QString& text) const { QGuiApplication::clipboard()->setText(text); }

}  // namespace mivo::app
