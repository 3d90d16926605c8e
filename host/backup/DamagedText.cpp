// SPDX-License-Identifier: MIT
#include "host/backup/DamagedText.h"

namespace mivo::host {

std::string damagedText(const std::filesystem::path& database, const BackupList& folder, const TextLookup& texts,
                        const DateFormatter& dates) {
  const auto backups = folder.backups();
  if (backups.empty())
    return filledIn(texts.text("{1} is damaged, and there is no backup of it."), {database.string()});
  return filledIn(texts.text("{1} is damaged; the newest backup is of {2}."),
                  {database.string(), dates.string(backups.front().date, "yMMMdjm").value_or("")});
}

}  // namespace mivo::host
