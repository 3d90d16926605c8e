// SPDX-License-Identifier: MIT
#include "host/backup/BackupList.h"

#include <algorithm>
#include <chrono>
#include <system_error>

#include "host/backup/BackupName.h"
#include "host/backup/BackupRotation.h"
#include "host/history/Snapshot.h"

namespace mivo::host {
namespace {

/// The second of two backups in one second gets the next one.
Backup written(const BackupFiles& files, const std::filesystem::path& folder, std::string_view content, Date now) {
  for (Date date = std::chrono::floor<std::chrono::seconds>(now);; date += std::chrono::seconds{1}) try {
      const std::filesystem::path file = folder / backupName(date);
      files.write(file, content);
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

std::vector<Backup> BackupList::backups() const {
  std::vector<Backup> all;
  for (const std::string& name : files->names(folder))
    if (const auto date = backupDate(name)) all.push_back({folder / name, *date});
  std::ranges::sort(all, std::ranges::greater{}, &Backup::date);
  return all;
}

bool BackupList::isDue(Date now) const {
  return std::ranges::none_of(backups(),
                              [&](const Backup& backup) { return backupDay(backup.date) == backupDay(now); });
}

std::optional<KeptBackup> BackupList::keep(const History& history, std::span<const Setting> settings, Date now) const {
  if (history.fasts.empty() && history.weights.empty()) return std::nullopt;
  if (const auto all = backups(); !all.empty())
    if (const auto newest = files->read(all.front().file);
        newest && newest->fasts == history.fasts && newest->weights == history.weights)
      return KeptBackup{all.front()};
  return KeptBackup{written(*files, folder, writeSnapshot(history, settings), now), true};
}

std::optional<KeptBackup> BackupList::keepAndRotate(const History& history, std::span<const Setting> settings,
                                                    Date now) const {
  auto kept = keep(history, settings, now);
  if (kept && kept->isNew) rotate(kept->backup);
  return kept;
}

void BackupList::rotate(const Backup& made) const {
  const auto all = backups();
  std::vector<Date> dates;
  dates.reserve(all.size());
  for (const Backup& backup : all) dates.push_back(backup.date);
  const auto kept = keptBackups(std::move(dates));
  for (const Backup& backup : all)
    if (backup != made && std::ranges::find(kept, backup.date) == kept.end()) files->remove(backup.file);
  for (const std::string& name : files->names(folder))
    if (const auto date = dateOfPart(name); date && backupDay(*date) < backupDay(made.date))
      files->remove(folder / name);
}

std::filesystem::path backupFolder(const std::filesystem::path& database) { return database.string() + ".backups"; }

}  // namespace mivo::host
