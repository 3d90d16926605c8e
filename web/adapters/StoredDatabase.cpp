// SPDX-License-Identifier: MIT
#include "web/adapters/StoredDatabase.h"

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include <memory>
#include <new>

#include "web/adapters/StoredFiles.h"

namespace mivo::web {
namespace {

constexpr const char* log = "-wal";

}  // namespace

StoredDatabase openStored(const std::string& file) {
  sqlite3* connection = nullptr;
  host::Database database{file, host::Database::Access::readAndWrite, [&] {
                            SQLite::Database opened{file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
                            opened.exec("PRAGMA locking_mode = EXCLUSIVE");
                            connection = opened.getHandle();
                            return opened;
                          }};
  return {std::move(database), connection};
}

std::string databaseBytes(sqlite3* connection) {
  sqlite3_int64 size = 0;
  const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> copy{sqlite3_serialize(connection, "main", &size, 0),
                                                                     &sqlite3_free};
  if (!copy) throw std::bad_alloc{};
  return {reinterpret_cast<const char*>(copy.get()), static_cast<std::size_t>(size)};
}

std::string copyAside(const std::string& file) {
  int copy = 1;
  while (isStored(file + ".damaged-" + std::to_string(copy))) ++copy;
  const std::string aside = file + ".damaged-" + std::to_string(copy);
  if (const auto content = readStored(file)) replaceStored(aside, *content);
  if (const auto content = readStored(file + log)) replaceStored(aside + log, *content);
  return aside;
}

void replaceDatabase(const std::string& file, const host::History& records) {
  StoredDatabase made = openStored(":memory:");
  made.database.replace(records, [](const host::History&) {});
  const std::string content = databaseBytes(made.connection);
  removeStored(file + log);  // it would be read with the new one
  replaceStored(file, content);
}

void removeDatabase(const std::string& file) {
  removeStored(file + log);
  removeStored(file);
}

}  // namespace mivo::web
