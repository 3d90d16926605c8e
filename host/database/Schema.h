// SPDX-License-Identifier: MIT
#pragma once

#include <SQLiteCpp/Database.h>

namespace mivo::host {

/// Brings a database to the present layout, step by step from the one it has; an empty file gets all of them. Each step
/// is a transaction, so that a program that is killed in between goes on from there. Throws DatabaseError where the
/// database has a layout that this program does not know.
void migrate(SQLite::Database& database);

/// Throws DatabaseError unless the fasts and weights of a database can be read as it stands, as they can in every
/// layout from the first to the present one.
void demandReadable(SQLite::Database& database);

}  // namespace mivo::host
