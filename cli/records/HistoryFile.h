// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

#include "host/database/Database.h"

namespace mivo::cli {

/// The database that a command is to change. Where there is none it is made by the first change, so that a command that
/// is refused leaves none behind; a damaged one is kept aside, which is said. Members throw host::DatabaseError.
class HistoryFile {
 public:
  explicit HistoryFile(std::filesystem::path path);

  host::History history() const;
  void apply(const host::HistoryChange& change);
  /// As host::Database::undo.
  host::HistoryChange undo();

 private:
  std::filesystem::path file;
  std::optional<host::Database> database;
};

}  // namespace mivo::cli
