// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>

namespace mivo::tally {

/// Keeps a second server, or an import, off a database whose counts this process holds in memory. The system lets go of
/// it however the process ends.
class FileLock {
 public:
  /// Locks "FILE.lock" beside the file, in a folder that is made where it is missing; throws std::runtime_error with
  /// one sentence where another process has it.
  explicit FileLock(const std::filesystem::path& file);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

 private:
  int descriptor_ = -1;
};

}  // namespace mivo::tally
