// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <span>

#include "host/disk/BackupFolder.h"
#include "host/history/History.h"
#include "host/history/Setting.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// Makes a database hold these records and no others. What it holds is backed up first, and the database is changed in
/// place and in one transaction, so that programs that have it open see it, and the last change is this one, to be
/// undone as any other. One that is damaged is kept aside, and a new one takes its place in one step. Throws
/// DatabaseError and std::system_error; then nothing was changed.
Restored restore(const std::filesystem::path& database, const History& records, const BackupFolder& folder,
                 std::span<const Setting> settings, Date now);

}  // namespace mivo::host
