// SPDX-License-Identifier: MIT
#include "cli/records/HistoryFile.h"

#include <utility>

#include "host/disk/DatabaseFile.h"

namespace mivo::cli {

HistoryFile::HistoryFile(std::filesystem::path path, std::function<void(const host::Database&)> beforeChange)
    : file{std::move(path)}, prepare{std::move(beforeChange)} {
  if (std::filesystem::exists(file)) database.emplace(host::openDatabase(file));
}

host::Database& HistoryFile::forChange() {
  if (!database) database.emplace(host::openDatabase(file));
  if (prepare) prepare(*database);
  return *database;
}

host::History HistoryFile::history() const { return database ? database->history() : host::History{}; }

void HistoryFile::apply(const host::HistoryChange& change) { forChange().apply(change); }

host::HistoryChange HistoryFile::undo() { return database ? forChange().undo() : host::HistoryChange{}; }

}  // namespace mivo::cli
