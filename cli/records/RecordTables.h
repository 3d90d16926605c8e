// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <tl/expected.hpp>
#include <vector>

#include "cli/records/RecordRun.h"
#include "cli/records/ShortIDs.h"
#include "host/disk/BackupFolder.h"
#include "host/history/History.h"
#include "host/text/BadRecord.h"

namespace mivo::cli {

/// "3f9a  Feb 28, 2026, 8:04 PM to Mar 1, 2026, 12:46 PM, 16h 42m, goal 16h"
std::string described(const host::FastRecord& record, const ShortIDs& ids, const RecordRun& run);

/// "77c0  81.4 kg, Mar 1, 2026, 7:05 AM"
std::string described(const BodyWeightSample& sample, const ShortIDs& ids, const RecordRun& run);

/// A line a record with a heading, as wide as the terminal; only notes are cut there, and a terminal that is too narrow
/// for the rest has a few short lines a record. In a file or a pipe nothing is cut. Records in their order.
std::string fastTable(const std::vector<host::FastRecord>& fasts, const RecordRun& run);
std::string weightTable(const std::vector<BodyWeightSample>& weights, const RecordRun& run);

/// The backups of a folder, the newest first, with what each holds.
struct ListedBackup {
  host::Backup backup;
  tl::expected<host::History, host::BadRecord> records;
};
std::string backupTable(const std::vector<ListedBackup>& backups, const RecordRun& run);

/// "Feb 28, 2026, 8:04 PM"
std::string dateText(Date date, const RecordRun& run);

/// "319 fasts", "1 weight"
std::string fastCountText(std::size_t count, const RecordRun& run);
std::string weightCountText(std::size_t count, const RecordRun& run);

ShortIDs idsOf(const std::vector<host::FastRecord>& fasts);
ShortIDs idsOf(const std::vector<BodyWeightSample>& weights);

}  // namespace mivo::cli
