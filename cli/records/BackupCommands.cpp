// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/UserDirectories.h"
#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/records/RecordTables.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"
#include "host/backup/BackupName.h"
#include "host/disk/FindBackupPlace.h"
#include "host/disk/Restore.h"
#include "host/json/JsonWriter.h"
#include "host/json/RecordJson.h"

namespace mivo::cli {
namespace {

namespace fs = std::filesystem;

/// That of the options, or the one in force; why the chosen one is not is said.
host::BackupFolder folderOf(const RecordRun& run) {
  if (!run.options.folder.empty()) return host::BackupFolder{run.options.folder};
  const host::BackupPlace place = run.backupPlace();
  if (place.fault) complain(backupFaultText(place, *run.texts));
  return host::BackupFolder{place.folder()};
}

std::string backUp(const RecordRun& run) {
  const host::History history = run.history();
  const host::BackupFolder folder = folderOf(run);
  const auto kept = folder.keepAndRotate(history, run.settings(), run.now);
  if (!kept) return run.texts->text("There is nothing to back up yet.") + '\n';
  return filledIn(run.texts->text(kept->isNew ? translatable("Backed up to {1}: {2}, {3}")
                                              : translatable("Nothing has changed since the backup {1}: {2}, {3}")),
                  {kept->backup.file.string(), fastCountText(history.fasts.size(), run),
                   weightCountText(history.weights.size(), run)}) +
         '\n';
}

std::string listJson(const std::vector<ListedBackup>& backups) {
  using Layout = host::JsonWriter::Layout;
  host::JsonWriter json;
  json.beginArray(Layout::spread);
  for (const auto& [backup, records] : backups) {
    const auto member = [&json](std::string_view name, const auto& value) {
      json.key(name);
      host::writeJson(json, value);
    };
    json.beginObject(Layout::line);
    member("file", backup.file.string());
    member("date", backup.date);
    member("fasts", records ? std::optional{records->fasts.size()} : std::nullopt);
    member("weights", records ? std::optional{records->weights.size()} : std::nullopt);
    member("fault", records ? std::nullopt : std::optional{describe(records.error())});
    json.endObject();
  }
  json.endArray();
  return std::move(json).text();
}

std::string list(const RecordRun& run) {
  const auto asJson = readFormat(run.options.format);
  if (!asJson) throw Refused{wrongUsage, asJson.error()};
  std::vector<ListedBackup> listed;
  for (host::Backup& backup : folderOf(run).backups()) {
    auto records = host::readBackup(backup.file);
    listed.push_back({std::move(backup), std::move(records)});
  }
  return *asJson ? listJson(listed) : backupTable(listed, run);
}

/// The newest backup, or the newest of those that begin as was typed, or the file of that name.
fs::path chosen(const RecordRun& run, const host::BackupFolder& inForce) {
  const std::string& which = run.options.which;
  const host::BackupFolder folder = run.options.folder.empty() ? folderToRestore(run.backupPlace()) : inForce;
  for (const host::Backup& backup : folder.backups())
    if (host::backupKey(backup.date).starts_with(which) || backup.file.filename() == which) return backup.file;
  std::error_code unknown;
  if (fs::is_regular_file(which, unknown)) return which;
  if (which.empty()) throw Refused{atFault, folder.path().string() + ": no backups are there yet"};
  throw Refused{atFault,
                wrong("BACKUP", "expected the beginning of one that mivo backup list shows, or a file", which).value()};
}

/// From the first start to the last end or weight; nothing where there are no records.
std::optional<ClosedDateRange> span(const host::History& records) {
  std::optional<ClosedDateRange> range;
  const auto include = [&range](Date date) {
    if (!range) range = ClosedDateRange{date, date};
    range = ClosedDateRange{std::min(range->lowerBound, date), std::max(range->upperBound, date)};
  };
  for (const auto& [fast, note] : records.fasts) {
    include(fast.start);
    if (fast.finished) include(fast.finished->end);
  }
  for (const auto& sample : records.weights) include(sample.date);
  return range;
}

std::string whatCame(const fs::path& file, const host::History& records, const RecordRun& run) {
  const std::string fasts = fastCountText(records.fasts.size(), run),
                    weights = weightCountText(records.weights.size(), run);
  const auto range = span(records);
  if (!range) return filledIn(run.texts->text("Restored from {1}: {2}, {3}"), {file.string(), fasts, weights});
  return filledIn(run.texts->text("Restored from {1}: {2}, {3}, {4} to {5}"),
                  {file.string(), fasts, weights, dateText(range->lowerBound, run), dateText(range->upperBound, run)});
}

std::string whereTheStateBeforeWent(const host::Restored& restored, const RecordRun& run) {
  const TextLookup& texts = *run.texts;
  if (restored.setAside)
    return filledIn(texts.text("The damaged database is kept as {1}."), {restored.setAside->string()});
  if (!restored.before) return texts.text("There was nothing before.");
  return withHelp(filledIn(texts.text("What was there before is in {1}."), {restored.before->backup.file.string()}),
                  "mivo undo takes it back");
}

std::string restore(const RecordRun& run) {
  const host::BackupFolder folder = folderOf(run);
  const fs::path file = chosen(run, folder);
  const auto records = host::readBackup(file);
  if (!records) throw Refused{atFault, withHelp(describe(records.error()), "mivo backup list shows the others")};
  const auto restored = host::restore(run.file(), *records, folder, run.settings(), run.now);
  if (!restored.isChanged)
    return withHelp(filledIn(run.texts->text("The records are those of {1} already."), {file.string()}),
                    "mivo backup list shows the others") +
           '\n';
  return whatCame(file, *records, run) + '\n' + whereTheStateBeforeWent(restored, run) + '\n';
}

/// A setting that was not written would be said to be in force.
[[noreturn]] void refuseUnsaved(const RecordRun& run, const fs::path& file, const std::error_code& why) {
  throw Refused{atFault,
                filledIn(run.texts->text("Settings cannot be saved in {1}: {2}"), {file.string(), why.message()})};
}

std::string folder(const RecordRun& run) {
  const std::string& typed = run.options.newFolder;
  if (typed.empty() && !run.options.isUsualFolder) return folderOf(run).path().string() + '\n';
  const host::BackupPlace before = run.backupPlace();
  if (!before.isOffered)
    throw Refused{wrongUsage, wrong("--database", "a folder can be chosen for the app's own history alone").value()};
  const adapters::FileUserDefaults defaults{
      adapters::appDefaultsFile(),
      [&run](const fs::path& file, const std::error_code& why) { refuseUnsaved(run, file, why); }};
  const auto now = host::chooseBackupFolder(typed, defaults, *run.texts);
  if (!now) throw Refused{atFault, now.error()};
  return backupPlaceText(before, *now, *run.texts) + '\n';
}

}  // namespace

int runBackup(const RecordOptions& options) { return runRecordCommand(options, backUp); }
int runBackupList(const RecordOptions& options) { return runRecordCommand(options, list); }
int runBackupRestore(const RecordOptions& options) { return runRecordCommand(options, restore); }
int runBackupFolder(const RecordOptions& options) { return runRecordCommand(options, folder); }

}  // namespace mivo::cli
