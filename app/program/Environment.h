// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <tl/expected.hpp>

#include "app/program/Options.h"
#include "host/app/HistoryClient.h"
#include "host/place/WeekCalendar.h"
#include "host/tips/Tips.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

/// A folder that goes with the program, for a sample that must not touch what is the user's.
class SampleFolder {
 public:
  SampleFolder();
  ~SampleFolder();
  SampleFolder(const SampleFolder&) = delete;
  SampleFolder& operator=(const SampleFolder&) = delete;
  const std::filesystem::path& path() const { return folder; }

 private:
  std::filesystem::path folder;
};

/// What the app stands on: the machine's clients, and the user's records.
struct Environment {
  std::unique_ptr<SampleFolder> sampleFolder;  ///< only for a sample
  std::shared_ptr<const Dependencies> dependencies;
  std::shared_ptr<const host::Tips> tips;
  Client<host::HistoryClient> history;
  std::filesystem::path databaseFile;
  std::shared_ptr<const host::WeekCalendar> calendar;  ///< the one in the dependencies, to choose its weeks
  WeightUnit usualWeightUnit = WeightUnit::kilograms;  ///< in the locale
  bool rightToLeft = false;                            ///< the language is written so
  std::string notice;  ///< one sentence for the user, where a damaged database had to be put aside
};

/// Opens the history and sets the clients up, or says in one sentence what is wrong with the options or the database.
tl::expected<Environment, std::string> makeEnvironment(const Options& options);

}  // namespace mivo::app
