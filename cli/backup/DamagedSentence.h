// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/database/Database.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::cli {

/// That a database is damaged, of when its newest backup is, and the command that brings it back:
///
///     mivo.sqlite is damaged; the newest backup is of Mar 1, 2026, 1:00 PM. (mivo backup restore brings it back)
std::string damagedSentence(const host::DatabaseError& damaged, const TextLookup& texts, const DateFormatter& dates);

}  // namespace mivo::cli
