// SPDX-License-Identifier: MIT
#include "cli/backup/DamagedSentence.h"

#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/UserDirectories.h"
#include "cli/usage/Usage.h"
#include "host/backup/DamagedText.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/FindBackupPlace.h"

namespace mivo::cli {

std::string damagedSentence(const host::DatabaseError& damaged, const TextLookup& texts, const DateFormatter& dates) {
  const adapters::FileUserDefaults defaults{adapters::appDefaultsFile()};
  const host::BackupFolder folder = folderToRestore(host::backupPlace(damaged.file, defaults));
  const std::string command = host::restoreCommand(damaged.file);
  return withHelp(damagedText(damaged.file, folder, texts, dates), folder.backups().empty()
                                                                       ? command + " FILE puts a snapshot in its place"
                                                                       : command + " brings it back");
}

}  // namespace mivo::cli
