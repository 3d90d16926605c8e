// SPDX-License-Identifier: MIT
#pragma once

#include <SQLiteCpp/Database.h>

#include "host/fasting/HistoryChange.h"

namespace mivo::host {

/// The change that was done last, by whichever program; empty where nothing was changed yet. Throws SQLite::Exception.
HistoryChange lastChange(SQLite::Database& database);

/// Keeps a change, whose records have just been taken out and added in this order in the same transaction, as the last.
/// Throws SQLite::Exception.
void keepAsLast(SQLite::Database& database, const HistoryChange& change);

}  // namespace mivo::host
