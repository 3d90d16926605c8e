// SPDX-License-Identifier: MIT
#include "host/files/FilesOnDisk.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <iterator>
#include <span>
#include <system_error>
#include <utility>

#include "adapters/system/AtomicFile.h"
#include "host/disk/BackupFolder.h"
#include "host/disk/FindBackupPlace.h"
#include "host/disk/Restore.h"
#include "host/files/ReadImportFiles.h"

namespace mivo::host {
namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

FileFault unreadable(const std::string& path, int error) {
  const std::string reason = "expected a file that can be read: " + std::generic_category().message(error);
  return {.bad = {.file = path, .reason = reason}, .isGone = error == ENOENT || error == ENOTDIR};
}

ListedBackup counted(Backup backup) {
  const auto records = readBackup(backup.file);
  if (!records) return {.backup = std::move(backup), .fault = records.error()};
  return {.backup = std::move(backup),
          .counts = RecordCounts{static_cast<std::int64_t>(records->fasts.size()),
                                 static_cast<std::int64_t>(records->weights.size())}};
}

}  // namespace

FilesOnDisk::FilesOnDisk(Place where)
    : DataFiles{{.zone = where.zone, .ids = where.ids, .words = where.words}}, place{std::move(where)} {}

DataFiles::Read FilesOnDisk::read(const std::vector<std::string>& paths, const ImportAnswers& answers,
                                  const std::function<void(double)>& progress, const StopToken& stop) const {
  const ImportSettings settings = settingsFor(answers);
  const auto all = static_cast<double>(paths.size());
  std::vector<ImportedFile> files;
  for (std::size_t index = 0; index < paths.size(); ++index) {
    const auto ofAll = [&](double ofFile) { progress((static_cast<double>(index) + ofFile) / all); };
    auto some = readImportFiles(std::span{paths}.subspan(index, 1), settings, ids(), {ofAll, stop});
    if (!some) return some;
    std::ranges::move(*some, std::back_inserter(files));
  }
  return files;
}

tl::expected<FileState, FileFault> FilesOnDisk::state(const std::string& path) const { return fileState(path); }

void FilesOnDisk::write(ExportedPart part, const History& history, const std::filesystem::path& file) const {
  adapters::writePrivately(file, exportedText(part, history, place.settings()), adapters::Existing::replaced);
}

void FilesOnDisk::print(const std::filesystem::path& file, TimeRange range, PrintedWeights weights) const {
  place.print(file, range, weights);
}

BackupPlace FilesOnDisk::backupPlace() const { return host::backupPlace(place.database, *place.defaults); }

tl::expected<BackupPlace, std::string> FilesOnDisk::chooseBackupFolder(const std::filesystem::path& folder,
                                                                       const TextLookup& texts) const {
  return host::chooseBackupFolder(folder, *place.defaults, texts);
}

std::vector<ListedBackup> FilesOnDisk::backups(const std::filesystem::path& folder, bool areCounted) const {
  std::vector<ListedBackup> listed;
  for (Backup& backup : BackupFolder{folder}.backups())
    listed.push_back(areCounted ? counted(std::move(backup)) : ListedBackup{.backup = std::move(backup)});
  return listed;
}

std::optional<KeptBackup> FilesOnDisk::backUp(const History& history, Date now) const {
  return BackupFolder{backupPlace().folder()}.keepAndRotate(history, place.settings(), now);
}

tl::expected<Restored, BadRecord> FilesOnDisk::restore(const std::filesystem::path& file, Date now) const {
  const auto records = readBackup(file);
  if (!records) return tl::unexpected{records.error()};
  return host::restore(place.database, *records, BackupFolder{backupPlace().folder()}, place.settings(), now);
}

// A pipe would be waited for.
tl::expected<FileState, FileFault> fileState(const std::string& path) {
  struct stat status{};
  if (::stat(path.c_str(), &status) != 0 || ::access(path.c_str(), R_OK) != 0)
    return tl::unexpected{unreadable(path, errno)};
  if (!S_ISREG(status.st_mode)) return tl::unexpected{FileFault{{.file = path, .reason = "expected a file"}}};
  return FileState{.inode = static_cast<std::int64_t>(status.st_ino),
                   .sizeInBytes = status.st_size,
                   .modifiedAt = status.st_mtim.tv_sec * nanosecondsPerSecond + status.st_mtim.tv_nsec};
}

}  // namespace mivo::host
