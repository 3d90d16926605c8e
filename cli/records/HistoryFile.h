// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "host/database/Database.h"

namespace mivo::cli {

/// The database that a command is to change. Where there is none it is made by the first change, so that a command that
/// is refused leaves none behind. Members throw host::DatabaseError, of a damaged one too, which stays as it is.
class HistoryFile {
 public:
  /// `beforeChange` is called with a database that is about to be changed.
  explicit HistoryFile(std::filesystem::path path, std::function<void(const host::Database&)> beforeChange = {});

  host::History history() const;
  void apply(const host::HistoryChange& change);
  /// As host::Database::undo.
  host::HistoryChange undo();

 private:
  host::Database& forChange();

  std::filesystem::path file;
  std::function<void(const host::Database&)> prepare;
  std::optional<host::Database> database;
};

}  // namespace mivo::cli
