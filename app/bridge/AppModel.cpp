// SPDX-License-Identifier: MIT
#include "AppModel.h"

#include <QtCore/QUrl>
#include <QtCore/QUrlQuery>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtGui/QGuiApplication>
#include <cmath>

#include "app/bridge/EngineModels.h"
#include "host/app/CurrentTipFacts.h"
#include "host/app/Stamps.h"
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
      link{.clients = [present = services.dependencies] { return pageClients(*present, present->date->now()); },
           .state = [this]() -> const State& { return store.state(); },
           .send = [this](Action action) { send(std::move(action)); }},
      store{State::make(services.timeRange, services.usualWeightUnit),
            host::AppFeature{.history = services.history,
                             .files = services.files,
                             .linkedHealth = services.health,
                             .chooseFirstWeekday = [week = services.calendar](auto weekday) { week->choose(weekday); },
                             .keepReminding = services.keepReminding},
            dependencies.mainQueue, dependencies.taskRunner},
      fastingChart{new DayBarsModel{
          store.state().statistics.stats.fastingChartState, barClients(dependencies),
          [this](DayBarsModel::Action action) { sendStatistics(Sent::fastingChartAction{std::move(action)}); }, this}},
      eatingChart{new DayBarsModel{
          store.state().statistics.stats.eatingChartState, barClients(dependencies),
          [this](DayBarsModel::Action action) { sendStatistics(Sent::eatingChartAction{std::move(action)}); }, this}},
      weightChart{new LineChartModel{drawing::WeightChart{}, lineChartsHaveHeaders(dependencies.platformVersion),
                                     link.clients, this}},
      weightFastingChart{new LineChartModel{WeightFastingChart{}, lineChartsHaveHeaders(dependencies.platformVersion),
                                            link.clients, this}},
      addWeight{new AddWeightModel{
          [this](AddWeightModel::Action action) { sendStatistics(Sent::addWeightLogAction{std::move(action)}); },
          this}},
      weights{new WeightsModel{link, this}},
      fasting{new FastingModel{link, this}},
      donations{new DonationsModel{
          [this](DonationsFeature::Action action) {
            using Shown = PresentationAction<Destination::Action>;
            sendStatistics(Sent::destination{Shown::presented{Destination::Action::donations{std::move(action)}}});
          },
          this}},
      repair{new RepairModel{link, this}},
      settings{new SettingsModel{link, services.about, services.calendar->usualFirstWeekday(), this}},
      importing{new ImportModel{link, this}},
      severalFasts{new SeveralFastsModel{link, this}},
      exporting{new ExportModel{link, this}},
      health{new HealthModel{link, this}},
      backups{new BackupsModel{link, this}} {
  feedback->show(composeFeedback(texts));
  following = store.observe([this](const State& state) { follow(state); });
  send(Action::load{});
  watchTime();
}

AppModel* AppModel::create(QQmlEngine* engine, QJSEngine*) { return modelOf<AppModel>(*engine); }

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
  send(Action::lookForChanges{});
  followZone();
}

void AppModel::followZone() {
  const auto zone = services.followZone ? services.followZone() : std::nullopt;
  if (!zone) return;
  send(Action::didChangeZone{*zone});
  fasting->retell();
  weights->retell();
}

void AppModel::say(const std::string& sentence) {
  if (!sentence.empty()) send(Action::didFail{sentence});
}

void AppModel::follow(const State& state) {
  const auto& statistics = state.statistics;
  fastingChart->follow(statistics.stats.fastingChartState);
  eatingChart->follow(statistics.stats.eatingChartState);
  if (auto stamps = host::stampsOf(state); stamps != seen) {
    seen = std::move(stamps);
    followPages(state);
  }
  followScreens(state);
}

void AppModel::followPages(const State& state) {
  const auto& statistics = state.statistics;
  services.appearance->show(state.settings.appearance);
  tellTips(state);
  auto composed = composeScreen(screenInput(statistics), screenFormatters());
  screen->show(services.printed ? host::printedCards(std::move(composed), *services.printed) : std::move(composed));
  const WeightUnit unit = statistics.goalWeightCardState.weightUnit;
  weightChart->show(drawing::WeightChart{weightLogs(statistics.stats, statistics.timeRange), statistics.timeRange},
                    unit, state.now);
  weightFastingChart->show(mivo::weightFastingChart(statistics.stats, statistics.timeRange), unit, state.now);
  addWeight->show(composeAddWeight(statistics.addWeightLogState, link.clients()));
  weights->follow(state);
  fasting->follow(state);
  repair->follow(state);
  settings->follow(state);
  importing->follow(state);
  severalFasts->follow(state);
  health->follow(state);
  backups->follow(state);
  goalSheet->show(composeGoalWeightSheet(statistics.goalWeightCardState, texts, *dependencies.numberFormatter,
                                         *dependencies.massFormatter));
  message->show(host::composeMessage(state, texts, *dependencies.numberFormatter));
  followDestination(statistics);
}

void AppModel::followDestination(const StatisticsFeature::State& state) {
  const auto& destination = state.destination;
  if (!destination) return;
  if (const auto* shown = std::get_if<Destination::State::badges>(&*destination))
    badges->show(
        composeBadges(shown->state, state.streakSettings->countingEntity, texts, *dependencies.numberFormatter));
  if (const auto* shown = std::get_if<Destination::State::donations>(&*destination))
    donations->show(composeDonations(shown->state, texts));
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
  importing->follow(state);
  severalFasts->follow(state);
  exporting->follow(state);
  screens->show(composeOpenScreens(state));
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
  if (const auto closed = host::screenFrom(name.toStdString())) send(Action::didClose{*closed});
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
  say(host::noMailProgramText(texts));
  return false;
}

void AppModel::copy(const QString& text) const { QGuiApplication::clipboard()->setText(text); }

}  // namespace mivo::app
