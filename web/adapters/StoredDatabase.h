// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/database/Database.h"

struct sqlite3;

namespace mivo::web {

/// A database in the origin's private file system, of which this program is the only user.
struct StoredDatabase {
  host::Database database;
  sqlite3* connection;  ///< the database's own, wherever that is moved
};

/// Opens it, or makes a new one. Throws DatabaseError.
StoredDatabase openStored(const std::string& file);

/// What a file would hold that has all of a database, for the desktop to open.
std::string databaseBytes(sqlite3* connection);

/// Keeps a copy of a database, as it lies there, under another name, which is the answer. Throws std::system_error.
std::string copyAside(const std::string& file);

/// Puts a new database with these records in the place of another one, in one step. Throws std::system_error.
void replaceDatabase(const std::string& file, const host::History& records);

/// Puts an empty one in its place.
void removeDatabase(const std::string& file);

}  // namespace mivo::web
