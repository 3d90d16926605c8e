// SPDX-License-Identifier: MIT
#include "host/backup/BackupPlace.h"

namespace mivo::host {

std::string backupFaultText(const BackupPlace& place, const TextLookup& texts) {
  if (!place.fault) return {};
  return filledIn(texts.text("Backups cannot go to {1} at the moment ({2}). Meanwhile they go to {3}"),
                  {place.chosen.string(), place.fault.message(), place.usual.string()});
}

std::string backupPlaceText(const BackupPlace& before, const BackupPlace& now, const TextLookup& texts) {
  const std::filesystem::path then = before.folder(), present = now.folder();
  if (then == present) return filledIn(texts.text("Backups go to {1}"), {present.string()});
  return filledIn(texts.text("Backups go to {1} from now on. Those made before stay in {2}"),
                  {present.string(), then.string()});
}

}  // namespace mivo::host
