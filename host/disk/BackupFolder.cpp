// SPDX-License-Identifier: MIT
#include "host/disk/BackupFolder.h"

#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/system/AtomicFile.h"
#include "host/disk/TextFile.h"
#include "host/history/Snapshot.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;

void makeFolder(const fs::path& folder) {
  std::error_code failure;
  fs::path whole = fs::absolute(folder, failure);
  if (!whole.has_filename()) whole = whole.parent_path();  // "folder/"
  if (!failure) fs::create_directories(whole.parent_path(), failure);
  if (!failure && ::mkdir(whole.c_str(), S_IRWXU) != 0 && errno != EEXIST) failure = {errno, std::generic_category()};
  if (failure) throw std::system_error{failure, folder.string() + ": the folder cannot be made"};
}

class BackupsOnDisk final : public BackupFiles {
 public:
  std::vector<std::string> names(const fs::path& folder) const override {
    std::error_code failure;
    std::vector<std::string> all;
    for (fs::directory_iterator entry{folder, failure}, end; !failure && entry != end; entry.increment(failure))
      all.push_back(entry->path().filename().string());
    if (failure && failure != std::errc::no_such_file_or_directory)
      throw std::system_error{failure, folder.string() + ": the backups cannot be listed"};
    return all;
  }

  tl::expected<History, BadRecord> read(const fs::path& file) const override { return readBackup(file); }

  void write(const fs::path& file, std::string_view content) const override {
    makeFolder(file.parent_path());
    adapters::writePrivately(file, content, adapters::Existing::refused);
  }

  void remove(const fs::path& file) const override {
    std::error_code staysForTheNextTime;
    fs::remove(file, staysForTheNextTime);
  }
};

}  // namespace

BackupFolder::BackupFolder(fs::path place) : BackupList{std::move(place), std::make_shared<const BackupsOnDisk>()} {}

tl::expected<History, BadRecord> readBackup(const fs::path& file) {
  const auto text = readTextFile(file.string());
  if (!text) return tl::unexpected{text.error()};
  return readSnapshot(*text, file.string(), adapters::LocalUUIDGenerator{});
}

}  // namespace mivo::host
