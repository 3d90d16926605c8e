// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "host/backup/BackupList.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// That a database is damaged, and of when its newest backup is, in one sentence in the user's language.
std::string damagedText(const std::filesystem::path& database, const BackupList& folder, const TextLookup& texts,
                        const DateFormatter& dates);

}  // namespace mivo::host
