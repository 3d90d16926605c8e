// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/time/TimeZone.h"
#include "host/database/DatabaseHistory.h"
#include "host/frontend/FrontendServices.h"
#include "mivo/platform/EventStream.h"
#include "web/adapters/BrowserFiles.h"
#include "web/adapters/FetchSession.h"
#include "web/adapters/Turns.h"

struct sqlite3;

namespace mivo::web {

/// Where the app runs.
struct Place {
  std::shared_ptr<const adapters::TimeZone> zone;
  int firstWeekday = 2;                                ///< 1 = Sunday to 7 = Saturday
  WeightUnit usualWeightUnit = WeightUnit::kilograms;  ///< in the locale
  std::string server;                                  ///< of the roadmap and its votes; may be empty
};

/// Reads a place from JSON, a zone as `readTimeZone` does; an error is a sentence that names the field.
///
///     {"timeZone": {"name": "Europe/Berlin", ...}, "firstWeekday": 2, "weightUnit": "kg", "server": "https://..."}
tl::expected<Place, std::string> readPlace(std::string_view json);

/// How a history is opened that may be damaged: as it is, and one that is damaged and has backups is left alone; or its
/// newest backup that can be read takes its place; or an empty one does. The damaged file is kept.
enum class Opening { asItIs, fromNewestBackup, anew };

/// What the app stands on: the browser's clients, and the user's records.
struct Environment {
  Environment(const Place& place, const std::string& languageTag);

  /// Opens the history, or says in one sentence why it cannot be.
  tl::expected<void, std::string> open(Opening how);

  std::shared_ptr<Turns> turns;
  std::shared_ptr<FetchSession> session;
  std::shared_ptr<const Dependencies> dependencies;
  std::shared_ptr<host::WeekCalendar> calendar;
  std::shared_ptr<const host::DatabaseHistory> records;  ///< once they are open
  std::shared_ptr<const BrowserFiles> files;
  host::FrontendServices services;
  sqlite3* connection = nullptr;  ///< of the records
  EventStream<std::string> faults;
  std::string notice;      ///< a sentence about the history that was opened; empty where there is nothing to say
  bool isDamaged = false;  ///< it could not be opened for that, and there are backups

 private:
  void openOrThrow(Opening how);
  void openSettingAside();
  void openFromNewestBackup();
  void take(const std::string& file);
  void backUp() const;
  void tell(std::string sentence) const;
};

}  // namespace mivo::web
