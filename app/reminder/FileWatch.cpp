// SPDX-License-Identifier: MIT
#include "app/reminder/FileWatch.h"

#include <sys/stat.h>

#include <system_error>
#include <utility>

namespace mivo::app {
namespace {

constexpr int comeTogetherMilliseconds = 100;

QString pathOf(const std::filesystem::path& file) { return QString::fromStdString(file.string()); }

}  // namespace

FileWatch::FileWatch(std::vector<std::filesystem::path> watched) : files{std::move(watched)} {
  quiet.setSingleShot(true);
  quiet.setInterval(comeTogetherMilliseconds);
  connect(&watcher, &QFileSystemWatcher::directoryChanged, &quiet, qOverload<>(&QTimer::start));
  connect(&watcher, &QFileSystemWatcher::fileChanged, &quiet, qOverload<>(&QTimer::start));
  connect(&quiet, &QTimer::timeout, this, &FileWatch::compare);
  for (const auto& file : files) {
    std::error_code isNotOurs;  // what cannot be made is not watched
    std::filesystem::create_directories(file.parent_path(), isNotOurs);
    watcher.addPath(pathOf(file.parent_path()));
  }
  watch();
  for (const auto& file : files) seen.push_back(stampOf(file));
}

FileWatch::Stamp FileWatch::stampOf(const std::filesystem::path& file) {
  struct stat found{};
  if (::stat(file.c_str(), &found) != 0) return {};
  return {found.st_ino, found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
}

// SQLite touches a log that it opens for reading where it runs as root: to look would be a reason to look again.
void FileWatch::compare() {
  watch();
  std::vector<Stamp> present;
  present.reserve(files.size());
  for (const auto& file : files) present.push_back(stampOf(file));
  if (std::exchange(seen, present) != present) Q_EMIT changed();
}

// A file that was replaced is another one: it is to be watched anew.
void FileWatch::watch() {
  const QStringList present = watcher.files();
  for (const auto& file : files)
    if (!present.contains(pathOf(file)) && std::filesystem::exists(file)) watcher.addPath(pathOf(file));
}

}  // namespace mivo::app
