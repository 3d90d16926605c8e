// SPDX-License-Identifier: MIT
#include "host/disk/BackupFolder.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string>
#include <system_error>
#include <utility>

#include "adapters/system/AtomicFile.h"
#include "adapters/system/LocalUUIDGenerator.h"
#include "host/backup/BackupName.h"
#include "host/backup/BackupRotation.h"
#include "host/disk/TextFile.h"
#include "host/history/Snapshot.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;

/// The names in a folder; none where it is not there.
std::vector<std::string> names(const fs::path& folder) {
  std::error_code failure;
  std::vector<std::string> all;
  for (fs::directory_iterator entry{folder, failure}, end; !failure && entry != end; entry.increment(failure))
    all.push_back(entry->path().filename().string());
  if (failure && failure != std::errc::no_such_file_or_directory)
    throw std::system_error{failure, folder.string() + ": the backups cannot be listed"};
  return all;
}

void makeFolder(const fs::path& folder) {
  std::error_code failure;
  fs::path whole = fs::absolute(folder, failure);
  if (!whole.has_filename()) whole = whole.parent_path();  // "folder/"
  if (!failure) fs::create_directories(whole.parent_path(), failure);
  if (!failure && ::mkdir(whole.c_str(), S_IRWXU) != 0 && errno != EEXIST) failure = {errno, std::generic_category()};
  if (failure) throw std::system_error{failure, folder.string() + ": the folder cannot be made"};
}

/// The second of two backups in one second gets the next one.
Backup written(const fs::path& folder, std::string_view content, Date now) {
  makeFolder(folder);
  for (Date date = std::chrono::floor<std::chrono::seconds>(now);; date += std::chrono::seconds{1}) try {
      const fs::path file = folder / backupName(date);
      adapters::writePrivately(file, content, adapters::Existing::refused);
      return {file, date};
    } catch (const std::system_error& error) {
      if (error.code() != std::errc::file_exists) throw;
    }
}

/// When the backup was begun whose file has the random ending of one that is not whole yet.
std::optional<Date> dateOfPart(const std::string& name) {
  const std::size_t point = name.rfind('.');
  return point == std::string::npos ? std::nullopt : backupDate(std::string_view{name}.substr(0, point));
}

}  // namespace

std::vector<Backup> BackupFolder::backups() const {
  std::vector<Backup> all;
  for (const std::string& name : names(folder))
    if (const auto date = backupDate(name)) all.push_back({folder / name, *date});
  std::ranges::sort(all, std::ranges::greater{}, &Backup::date);
  return all;
}

bool BackupFolder::isDue(Date now) const {
  return std::ranges::none_of(backups(),
                              [&](const Backup& backup) { return backupDay(backup.date) == backupDay(now); });
}

std::optional<KeptBackup> BackupFolder::keep(const History& history, std::span<const Setting> settings,
                                             Date now) const {
  if (history.fasts.empty() && history.weights.empty()) return std::nullopt;
  if (const auto all = backups(); !all.empty())
    if (const auto newest = readBackup(all.front().file);
        newest && newest->fasts == history.fasts && newest->weights == history.weights)
      return KeptBackup{all.front()};
  return KeptBackup{written(folder, writeSnapshot(history, settings), now), true};
}

std::optional<KeptBackup> BackupFolder::keepAndRotate(const History& history, std::span<const Setting> settings,
                                                      Date now) const {
  auto kept = keep(history, settings, now);
  if (kept && kept->isNew) rotate(kept->backup);
  return kept;
}

void BackupFolder::rotate(const Backup& made) const {
  const auto all = backups();
  std::vector<Date> dates;
  dates.reserve(all.size());
  for (const Backup& backup : all) dates.push_back(backup.date);
  const auto kept = keptBackups(std::move(dates));
  std::error_code staysForTheNextTime;
  for (const Backup& backup : all)
    if (backup != made && std::ranges::find(kept, backup.date) == kept.end())
      fs::remove(backup.file, staysForTheNextTime);
  for (const std::string& name : names(folder))
    if (const auto date = dateOfPart(name); date && backupDay(*date) < backupDay(made.date))
      fs::remove(folder / name, staysForTheNextTime);
}

tl::expected<History, BadRecord> readBackup(const fs::path& file) {
  const auto text = readTextFile(file.string());
  if (!text) return tl::unexpected{text.error()};
  return readSnapshot(*text, file.string(), adapters::LocalUUIDGenerator{});
}

fs::path backupFolder(const fs::path& database) { return database.string() + ".backups"; }

}  // namespace mivo::host
