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
  /// Has what the user wants to be told of told while the window is closed; a sentence where that fails.
  std::function<std::optional<std::string>()> keepReminding = {};
};

/// The app's store as QML reads and drives it. It looks at the state once after each action and tells each model what
/// was written; no decision is made here.
class AppModel : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(App)
  QML_SINGLETON
  Q_PROPERTY(mivo::app::ScreenModel* screen READ screen CONSTANT)
  Q_PROPERTY(mivo::app::DayBarsModel* fastingChart READ fastingChart CONSTANT)
  Q_PROPERTY(mivo::app::DayBarsModel* eatingChart READ eatingChart CONSTANT)
  Q_PROPERTY(mivo::app::LineChartModel* weightChart READ weightChart CONSTANT)
  Q_PROPERTY(mivo::app::LineChartModel* weightFastingChart READ weightFastingChart CONSTANT)
  Q_PROPERTY(mivo::app::AddWeightModel* addWeight READ addWeight CONSTANT)
  Q_PROPERTY(mivo::app::WeightsModel* weights READ weights CONSTANT)
  Q_PROPERTY(mivo::app::FastingModel* fasting READ fasting CONSTANT)
  Q_PROPERTY(mivo::app::BadgesPageRecord* badges READ badges CONSTANT)
  Q_PROPERTY(mivo::app::DonationsModel* donations READ donations CONSTANT)
  Q_PROPERTY(mivo::app::RepairModel* repair READ repair CONSTANT)
  Q_PROPERTY(mivo::app::SettingsModel* settings READ settings CONSTANT)
  Q_PROPERTY(mivo::app::ImportModel* importing READ importing CONSTANT)
  Q_PROPERTY(mivo::app::SeveralFastsModel* severalFasts READ severalFasts CONSTANT)
  Q_PROPERTY(mivo::app::ExportModel* exporting READ exporting CONSTANT)
  Q_PROPERTY(mivo::app::HealthModel* health READ health CONSTANT)
  Q_PROPERTY(mivo::app::BackupsModel* backups READ backups CONSTANT)
  /// Only while the roadmap is shown.
  Q_PROPERTY(mivo::app::RoadmapModel* roadmap READ roadmap NOTIFY roadmapChanged)
  Q_PROPERTY(mivo::app::OpenScreensRecord* screens READ screens CONSTANT)
  Q_PROPERTY(mivo::app::GoalWeightSheetRecord* goalSheet READ goalSheet CONSTANT)
  Q_PROPERTY(mivo::app::FeedbackSheetRecord* feedback READ feedback CONSTANT)
  Q_PROPERTY(mivo::app::MessageRecord* message READ message CONSTANT)
  /// Whether anybody can see the window; while nobody can, only the minute's update is done.
  Q_PROPERTY(bool watched READ isWatched NOTIFY watchedChanged)

 public:
  using State = host::AppFeature::State;
  using Action = host::AppFeature::Action;

  /// Loads the history before it returns, so that the first frame is complete.
  explicit AppModel(AppServices services);
  static AppModel* create(QQmlEngine*, QJSEngine*);

  ScreenModel* screen() { return &cards; }
  DayBarsModel* fastingChart() { return &fastingBars; }
  DayBarsModel* eatingChart() { return &eatingBars; }
  LineChartModel* weightChart() { return &weightLine; }
  LineChartModel* weightFastingChart() { return &pairLine; }
  AddWeightModel* addWeight() { return &weightEntry; }
  WeightsModel* weights() { return &allWeights; }
  FastingModel* fasting() { return &runningFast; }
  BadgesPageRecord* badges() { return &badgeSummary; }
  DonationsModel* donations() { return &donationSheet; }
  RepairModel* repair() { return &overlapRepair; }
  SettingsModel* settings() { return &chosenSettings; }
  ImportModel* importing() { return &importSheet; }
  SeveralFastsModel* severalFasts() { return &severalFastsSheet; }
  ExportModel* exporting() { return &exportSheet; }
  HealthModel* health() { return &healthSheet; }
  BackupsModel* backups() { return &allBackups; }
  RoadmapModel* roadmap() { return features.get(); }
  GoalWeightSheetRecord* goalSheet() { return &goalWeight; }
  FeedbackSheetRecord* feedback() { return &feedbackTexts; }
  MessageRecord* message() { return &said; }
  OpenScreensRecord* screens() { return &openScreens; }
  /// One sentence about what failed; empty where nothing did.
  QString failure() const;

  bool isWatched() const { return watched; }
  void setWatched(bool isNow);

  const State& state() const { return store.state(); }
  void appear() { sendStatistics(StatisticsFeature::Action::onAppear{}); }
  /// A sentence for the user, until dismissed; an empty one says nothing.
  void say(const std::string& sentence);

  /// As the settings say: after they changed, and once for each start of the app.
  void keepReminding();

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
  void load();
  void watchTime();
  void waitForNextMinute();
  void lookAround();
  void lookForOtherPrograms();
  void followZone();
  void follow(const State& state);
  void followPages(const State& state);
  void followDestination(const StatisticsFeature::State& state);
  void followScreens(const State& state);
  void tellTips(const State& state) const;

  AppServices services;
  const Dependencies& dependencies;
  const TextLookup& texts;
  std::function<PageClients()> clients;  // of the present
  std::int64_t seenVersion = 0;
  Store<host::AppFeature> store;
  std::vector<Stamp> seen;
  ScreenModel cards;
  DayBarsModel fastingBars, eatingBars;
  LineChartModel weightLine, pairLine;
  AddWeightModel weightEntry;
  WeightsModel allWeights;
  FastingModel runningFast;
  BadgesPageRecord badgeSummary;
  DonationsModel donationSheet;
  RepairModel overlapRepair;
  SettingsModel chosenSettings;
  ImportModel importSheet;
  SeveralFastsModel severalFastsSheet;
  ExportModel exportSheet;
  HealthModel healthSheet;
  BackupsModel allBackups;
  GoalWeightSheetRecord goalWeight;
  FeedbackSheetRecord feedbackTexts;
  MessageRecord said;
  std::unique_ptr<RoadmapModel> features;
  std::optional<host::Screen> opened;  // as the window was told last
  OpenScreensRecord openScreens;
  bool watched = true;
  QTimer nextMinute, watch;
  Subscription following;
};

}  // namespace mivo::app
