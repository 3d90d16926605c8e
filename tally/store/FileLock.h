// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>

namespace mivo::tally {

/// Keeps a second server, or an import, off a database whose counts this process holds in memory. The system lets go of
/// it however the process ends.
///
/// Must be made before the database is opened and end after it was closed: closing any descriptor of a file drops the
/// locks that SQLite has on it in this process.
class FileLock {
 public:
  /// Locks the file itself, so that a link to it leads to the same lock, and "FILE.lock" beside it, which is what older
  /// servers look at. Makes both, and the folder, where they are missing. Throws std::runtime_error with one sentence
  /// where another process has one of them.
  explicit FileLock(const std::filesystem::path& file);

 private:
  class Descriptor {
   public:
    Descriptor(const std::filesystem::path& path, const std::filesystem::path& database);
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

   private:
    int number = -1;
  };

  Descriptor lockFile;
  Descriptor database;
};

}  // namespace mivo::tally
