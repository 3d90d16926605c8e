// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/bridge/AddWeightModel.h"
#include "app/bridge/AppLink.h"
#include "app/bridge/Appearance.h"
#include "app/bridge/DataModels.h"
#include "app/bridge/DayBarsModel.h"
#include "app/bridge/DonationsModel.h"
#include "app/bridge/FastingModel.h"
#include "app/bridge/LineChartModel.h"
#include "app/bridge/RepairModel.h"
#include "app/bridge/RoadmapModel.h"
#include "app/bridge/ScreenModel.h"
#include "app/bridge/SettingsModel.h"
#include "app/bridge/WeightsModel.h"
#include "app/records/Records.h"
#include "host/app/AppFeature.h"
#include "host/pages/PrintedCards.h"
#include "host/place/WeekCalendar.h"
#include "host/tips/Tips.h"
#include "mivo/store/Store.h"

class QQmlEngine;
class QJSEngine;

namespace mivo::app {

/// What the app's model stands on.
struct AppServices {
  std::shared_ptr<const Dependencies> dependencies;  ///< also in force where the model is made
  Client<host::HistoryClient> history;
  Client<host::DataFiles> files;
  Client<host::LinkedHealthClient> health;
  std::shared_ptr<const host::Tips> tips;
  TimeRange timeRange = TimeRange::week;               ///< that the statistics begin with
  std::optional<host::PrintedWeights> printed = {};    ///< where the screen is to be printed
  WeightUnit usualWeightUnit = WeightUnit::kilograms;  ///< in the user's locale
  std::string feedbackAddress = {};                    ///< of mail; none where nobody reads any
  std::shared_ptr<host::WeekCalendar> calendar;        ///< the one in the dependencies
  Appearance* appearance = nullptr;                    ///< outlives the model
  host::AboutFacts about = {};
  /// Takes over the system's time zone; its name where it is another one than before.
  std::function<std::optional<std::string>()> followZone = {};
  std::function<std::optional<std::string>(const host::ReminderSettings&)> keepReminding = {};
};

/// The app's store as QML reads and drives it. It looks at the state once after each action and tells each model what
/// was written; no decision is made here.
class AppModel : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(App)
  QML_SINGLETON
  Q_PROPERTY(mivo::app::ScreenModel* screen MEMBER screen CONSTANT)
  Q_PROPERTY(mivo::app::DayBarsModel* fastingChart MEMBER fastingChart CONSTANT)
  Q_PROPERTY(mivo::app::DayBarsModel* eatingChart MEMBER eatingChart CONSTANT)
  Q_PROPERTY(mivo::app::LineChartModel* weightChart MEMBER weightChart CONSTANT)
  Q_PROPERTY(mivo::app::LineChartModel* weightFastingChart MEMBER weightFastingChart CONSTANT)
  Q_PROPERTY(mivo::app::AddWeightModel* addWeight MEMBER addWeight CONSTANT)
  Q_PROPERTY(mivo::app::WeightsModel* weights MEMBER weights CONSTANT)
  Q_PROPERTY(mivo::app::FastingModel* fasting MEMBER fasting CONSTANT)
  Q_PROPERTY(mivo::app::BadgesPageRecord* badges MEMBER badges CONSTANT)
  Q_PROPERTY(mivo::app::DonationsModel* donations MEMBER donations CONSTANT)
  Q_PROPERTY(mivo::app::RepairModel* repair MEMBER repair CONSTANT)
  Q_PROPERTY(mivo::app::SettingsModel* settings MEMBER settings CONSTANT)
  Q_PROPERTY(mivo::app::ImportModel* importing MEMBER importing CONSTANT)
  Q_PROPERTY(mivo::app::SeveralFastsModel* severalFasts MEMBER severalFasts CONSTANT)
  Q_PROPERTY(mivo::app::ExportModel* exporting MEMBER exporting CONSTANT)
  Q_PROPERTY(mivo::app::HealthModel* health MEMBER health CONSTANT)
  Q_PROPERTY(mivo::app::BackupsModel* backups MEMBER backups CONSTANT)
  /// Only while the roadmap is shown.
  Q_PROPERTY(mivo::app::RoadmapModel* roadmap READ roadmap NOTIFY roadmapChanged)
  Q_PROPERTY(mivo::app::OpenScreensRecord* screens MEMBER screens CONSTANT)
  Q_PROPERTY(mivo::app::GoalWeightSheetRecord* goalSheet MEMBER goalSheet CONSTANT)
  Q_PROPERTY(mivo::app::FeedbackSheetRecord* feedback MEMBER feedback CONSTANT)
  Q_PROPERTY(mivo::app::MessageRecord* message MEMBER message CONSTANT)
  /// Whether anybody can see the window; while nobody can, only the minute's update is done.
  Q_PROPERTY(bool watched READ isWatched NOTIFY watchedChanged)

 public:
  using State = host::AppFeature::State;
  using Action = host::AppFeature::Action;

  /// Loads the history before it returns, so that the first frame is complete.
  explicit AppModel(AppServices services);
  static AppModel* create(QQmlEngine*, QJSEngine*);

  RoadmapModel* roadmap() { return features.get(); }
  /// One sentence about what failed; empty where nothing did.
  QString failure() const;

  bool isWatched() const { return watched; }
  void setWatched(bool isNow);

  const State& state() const { return store.state(); }
  void appear() { sendStatistics(StatisticsFeature::Action::onAppear{}); }
  /// A sentence for the user, until dismissed; an empty one says nothing.
  void say(const std::string& sentence);

  /// Opens a `host::Screen` by its name; for no name, closes all but the tab.
  Q_INVOKABLE void present(const QString& name);
  /// A sheet was closed by who looks at it.
  Q_INVOKABLE void close(const QString& name);
  Q_INVOKABLE void back() { send(Action::didGoBack{}); }
  Q_INVOKABLE void chooseTimeRange(int index);
  Q_INVOKABLE void dismissTip();
  Q_INVOKABLE void pressMessage() { send(Action::didTapMessage{}); }
  Q_INVOKABLE void dismissMessages() { send(Action::didDismissMessages{}); }
  Q_INVOKABLE void openGoalWeight();
  Q_INVOKABLE void setGoalWeight(const QString& text);
  Q_INVOKABLE bool canSend(const QString& idea) const;
  /// Hands an idea to the user's mail program, with the address for an answer where they give one. False where no mail
  /// program takes it: it is on the clipboard then, and a message says so.
  Q_INVOKABLE bool sendFeedback(const QString& idea, const QString& replyTo);
  Q_INVOKABLE void copy(const QString& text) const;

  void send(Action action) { store.send(std::move(action)); }
  void sendStatistics(StatisticsFeature::Action action) { send(Action::statistics{std::move(action)}); }

 Q_SIGNALS:
  void roadmapChanged();
  void watchedChanged();

 private:
  void watchTime();
  void waitForNextMinute();
  void lookAround();
  void followZone();
  void follow(const State& state);
  void followPages(const State& state);
  void followDestination(const StatisticsFeature::State& state);
  void followScreens(const State& state);
  void tellTips(const State& state) const;

  AppServices services;
  const Dependencies& dependencies;
  const TextLookup& texts;
  const AppLink link;
  Store<host::AppFeature> store;
  std::vector<Stamp> seen;
  std::unique_ptr<RoadmapModel> features;
  std::optional<host::Screen> opened;  // as the window was told last
  bool watched = true;
  QTimer nextMinute, watch;
  Subscription following;

 public:
  // Below the store, of whose state some of them are made.
  ScreenModel* const screen = new ScreenModel{this};
  DayBarsModel* const fastingChart;
  DayBarsModel* const eatingChart;
  LineChartModel* const weightChart;
  LineChartModel* const weightFastingChart;
  AddWeightModel* const addWeight;
  WeightsModel* const weights;
  FastingModel* const fasting;
  BadgesPageRecord* const badges = new BadgesPageRecord{this};
  DonationsModel* const donations;
  RepairModel* const repair;
  SettingsModel* const settings;
  ImportModel* const importing;
  SeveralFastsModel* const severalFasts;
  ExportModel* const exporting;
  HealthModel* const health;
  BackupsModel* const backups;
  OpenScreensRecord* const screens = new OpenScreensRecord{this};
  GoalWeightSheetRecord* const goalSheet = new GoalWeightSheetRecord{this};
  FeedbackSheetRecord* const feedback = new FeedbackSheetRecord{this};
  MessageRecord* const message = new MessageRecord{this};
};

}  // namespace mivo::app
