// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "host/database/Database.h"
#include "host/history/History.h"

namespace mivo::host {

/// Opens a database on disk, makes it and its folder where they are missing, and lets nobody but its owner read it; one
/// that is only to be read must be there, and is left as it is. What is written to it is on disk when the call returns.
/// Throws DatabaseError.
Database openDatabase(const std::filesystem::path& file, Database::Access access = Database::Access::readAndWrite);

/// The same, but moves a damaged one aside and starts an empty one in its place.
/// `setAside` is then the path under which the damaged one is kept.
struct OpenedDatabase {
  Database database;
  std::optional<std::filesystem::path> setAside = {};
};
OpenedDatabase openOrSetAside(const std::filesystem::path& file);

/// Puts a new database with these records in the place of a damaged one, in one step, so that at no time there is none,
/// and returns the path under which the damaged one is kept. Throws DatabaseError; the damaged one then stands as it
/// was.
std::filesystem::path replaceDamaged(const std::filesystem::path& file, const History& records);

/// What writes all of a database into a file, typed into a terminal: "mivo export --to copy.json".
std::string exportCommand(const std::filesystem::path& database);
/// What puts the newest backup into a database: "mivo backup restore".
std::string restoreCommand(const std::filesystem::path& database);

/// Where the app and the command line keep a user's database: "mivo/mivo.sqlite" in the user's data folder.
std::filesystem::path ownDatabaseFile();

}  // namespace mivo::host
