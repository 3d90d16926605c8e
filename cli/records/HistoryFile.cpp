// SPDX-License-Identifier: MIT
#include "cli/records/HistoryFile.h"

#include <string>
#include <utility>

#include "cli/terminal/StandardOutput.h"

namespace mivo::cli {
namespace {

host::Database open(const std::filesystem::path& file) {
  auto opened = host::openOrSetAside(file);
  if (opened.setAside)
    complain(file.string() + ": the database is damaged; it is kept as " + opened.setAside->string() +
             ", and a new one was begun");
  return std::move(opened.database);
}

}  // namespace

HistoryFile::HistoryFile(std::filesystem::path path) : file{std::move(path)} {
  if (std::filesystem::exists(file)) database = open(file);
}

host::History HistoryFile::history() const { return database ? database->history() : host::History{}; }

void HistoryFile::apply(const host::HistoryChange& change) {
  if (!database) database = open(file);
  database->apply(change);
}

host::HistoryChange HistoryFile::undo() { return database ? database->undo() : host::HistoryChange{}; }

}  // namespace mivo::cli
