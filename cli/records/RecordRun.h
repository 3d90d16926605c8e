// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/icu/LocaleFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/time/TimeZone.h"
#include "cli/records/HistoryFile.h"
#include "cli/records/RecordOptions.h"
#include "cli/records/ShortIDs.h"
#include "host/backup/BackupPlace.h"
#include "host/fasting/Fasting.h"
#include "host/history/Setting.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::cli {

/// A command that was not done, with the sentence for it and the exit status.
struct Refused : std::runtime_error {
  Refused(int exitStatus, const std::string& sentence) : runtime_error{sentence}, status{exitStatus} {}
  int status;
};

/// What a run of such a command has at hand. Members throw Refused or host::DatabaseError.
class RecordRun {
 public:
  /// Reads the locale and the zone; opens no file.
  explicit RecordRun(const RecordOptions& typed);

  const RecordOptions& options;
  const adapters::UserLocale locale;
  const std::shared_ptr<const adapters::TimeZone> zone;
  const adapters::LocaleFormatters formatters;
  const std::shared_ptr<const TextLookup> texts;
  const Date now;

  std::filesystem::path file() const;

  /// The database, for a change. Of the app's own the day's backup is made first where it is due; what stands against
  /// that is said and stops nothing.
  HistoryFile open() const;
  /// The records. Nothing is made where there is no file: no records where that is the app's own, refused otherwise.
  host::History history() const;
  /// Where its backups go.
  host::BackupPlace backupPlace() const;
  /// The app's settings, which go with its own history only.
  std::vector<host::Setting> settings() const;

  /// What an option says, or now without it.
  Date dateOrNow(std::string_view name, const std::optional<std::string>& text) const;
  /// Of a time without a day the last one that has passed, or the first one after a start.
  Date date(std::string_view name, const std::string& text, std::optional<Date> after = {}) const;
  /// What `--goal-hours` says, in seconds; or the fallback without it.
  std::int64_t goalSeconds(std::int64_t fallback) const;

  /// The change, or why there is none; what the command line can say about that stands behind the sentence.
  host::HistoryChange change(host::Outcome outcome) const;
  [[noreturn]] void refuse(const host::Refusal& refusal) const;

  /// What the user chose in the app, or what people weigh themselves in where they live.
  WeightUnit weightUnit() const;

  /// "2026-02-28 20:04", as it can be typed in.
  std::string typed(Date date) const;

 private:
  bool isOwn() const;
  void backUp(const host::Database& database) const;
};

/// Runs a command and turns what it throws into a line on standard error. What it returns is printed.
int runRecordCommand(const RecordOptions& options, const std::function<std::string(const RecordRun&)>& command);

/// The record whose id begins as `options.id`. `kind` names what is looked for: "fast".
std::size_t placeOf(const RecordRun& run, const ShortIDs& ids, std::string_view kind);

}  // namespace mivo::cli
