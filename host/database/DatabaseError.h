// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

namespace mivo::host {

/// What went wrong with the user's database; `what()` is a sentence that names the file.
class DatabaseError : public std::runtime_error {
 public:
  enum class Kind {
    damaged,      ///< it is not a database, or its contents do not hold together
    tooNew,       ///< a later version of the program has written it
    conflict,     ///< a record is not, or no longer, as the change takes it to be
    fastRunning,  ///< a second running fast was to be added
    diskFull,     ///< or the user's share of it
    locked,       ///< another program keeps it locked
    readOnly,     ///< it may be read, but not written
    noFolder,     ///< its folder cannot be made
    unavailable,  ///< it cannot be read or written for another reason
  };

  DatabaseError(Kind what, std::filesystem::path where, const std::string& why)
      : std::runtime_error{where.string() + ": " + why}, kind{what}, file{std::move(where)}, reason{why} {}

  const Kind kind;
  const std::filesystem::path file;  ///< or its folder, where that is what is wrong
  const std::string reason;          ///< in English, without the file
};

}  // namespace mivo::host
