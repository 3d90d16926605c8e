// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <tl/expected.hpp>

#include "host/backup/BackupList.h"
#include "host/history/History.h"
#include "host/text/BadRecord.h"

namespace mivo::host {

/// A folder of backups on this machine's disk, which only their owner may read.
class BackupFolder : public BackupList {
 public:
  explicit BackupFolder(std::filesystem::path place);
};

/// The records of a backup, or of any other snapshot; or the first fault.
tl::expected<History, BadRecord> readBackup(const std::filesystem::path& file);

}  // namespace mivo::host
