// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <tl/expected.hpp>

#include "app/program/Options.h"
#include "host/data/DataFiles.h"
#include "host/fasting/HistoryClient.h"
#include "host/health/LinkedHealthClient.h"
#include "host/place/TypedDates.h"
#include "host/place/WeekCalendar.h"
#include "host/tips/Tips.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/platform/EventStream.h"
#include "mivo/platform/TaskRunner.h"

namespace mivo::app {

class SystemZone;

/// A folder that goes with the program, for a sample that must not touch what is the user's.
class SampleFolder {
 public:
  /// The one that the program before this one left to it, or a new one.
  SampleFolder();
  ~SampleFolder();
  SampleFolder(const SampleFolder&) = delete;
  SampleFolder& operator=(const SampleFolder&) = delete;
  const std::filesystem::path& path() const { return folder; }
  bool isInherited() const { return inherited; }

  /// Stays, for the program that this one becomes.
  void bequeath();

 private:
  std::filesystem::path folder;
  bool inherited = false, isKept = false;
};

/// What the app stands on: the machine's clients, and the user's records.
struct Environment {
  std::unique_ptr<SampleFolder> sampleFolder;  ///< only for a sample
  std::shared_ptr<const Dependencies> dependencies;
  std::shared_ptr<const host::Tips> tips;
  std::filesystem::path databaseFile;
  std::shared_ptr<host::WeekCalendar> calendar;  ///< the one in the dependencies, to choose its weeks
  std::function<std::shared_ptr<const host::TypedDateWords>()> typedDateWords;  ///< for the main thread
  std::shared_ptr<SystemZone> systemZone;              ///< to be followed; none where the options name a zone
  Client<host::HistoryClient> history;                 ///< none where it could not be opened; `notice` then says why
  Client<host::DataFiles> files;                       ///< around the history, opened or not
  Client<host::LinkedHealthClient> health;             ///< the one in the dependencies
  bool isDamaged = false;                              ///< it could not be opened for that, and there are backups
  WeightUnit usualWeightUnit = WeightUnit::kilograms;  ///< in the locale
  bool rightToLeft = false;                            ///< the language is written so
  EventStream<std::string> faults;                     ///< sentences for the user, on the main thread
  /// One sentence for the user about the history: a damaged one had to be put aside, one may only be read.
  std::string notice = {};
  /// Those of the dependencies; whoever lets go of it last waits for the tasks, on the main thread.
  std::shared_ptr<const TaskRunner> threads;
};

/// Sets the clients up and opens the history, or says in one sentence what is wrong with the options.
tl::expected<Environment, std::string> makeEnvironment(const Options& options);

/// Tries again where the history could not be opened. True where it is open now.
bool openHistory(Environment& environment, const Options& options);

/// The two ways on from a damaged history: its newest backup that can be read takes its place, or an empty one does.
/// The damaged file is kept, and `notice` says where. True where the history is open now.
bool restoreNewestBackup(Environment& environment, const Options& options);
bool beginAnew(Environment& environment, const Options& options);

}  // namespace mivo::app
