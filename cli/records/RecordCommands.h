// SPDX-License-Identifier: MIT
#pragma once

#include "cli/records/RecordOptions.h"

namespace mivo::cli {

// The commands that keep the history. Each does one thing, which is on disk before it is said, and returns the exit
// status: 0; 1 where the records or the database stand against it; 2 where the command line does. With other than 0,
// one line is on standard error and nothing was changed.

int runStart(const RecordOptions& options);
int runStop(const RecordOptions& options);
int runAdd(const RecordOptions& options);
int runEdit(const RecordOptions& options);
int runRemove(const RecordOptions& options);
/// Makes overlapping fasts stand one after another, or says what it would change.
int runRepair(const RecordOptions& options);
/// Takes back the last change, by whichever program.
int runUndo(const RecordOptions& options);
/// What the fasting page of the app says just now, in a line or as the whole page.
int runStatus(const RecordOptions& options);
int runList(const RecordOptions& options);
/// Adds what files hold to the history, all of them or none.
int runImport(const RecordOptions& options);
int runExport(const RecordOptions& options);
/// Backs the history up now, or tells which backup has it already; lists the backups; goes back to one of them; tells
/// or chooses where they go.
int runBackup(const RecordOptions& options);
int runBackupList(const RecordOptions& options);
int runBackupRestore(const RecordOptions& options);
int runBackupFolder(const RecordOptions& options);
int runWeightAdd(const RecordOptions& options);
int runWeightList(const RecordOptions& options);
int runWeightRemove(const RecordOptions& options);

}  // namespace mivo::cli
