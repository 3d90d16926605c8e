// SPDX-License-Identifier: MIT
#include "host/disk/DatabaseFile.h"

#include <SQLiteCpp/Database.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <system_error>

#include "adapters/system/FileDescriptor.h"
#include "adapters/system/UserDirectories.h"
#include "host/dates/DateText.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;
using Kind = DatabaseError::Kind;

constexpr int millisecondsToWaitForALock = 5000;

void makeFolder(const fs::path& file) {
  std::error_code error;
  if (file.has_parent_path()) fs::create_directories(file.parent_path(), error);
  if (error) throw DatabaseError{Kind::noFolder, file.parent_path(), "the folder cannot be made: " + error.message()};
}

// SQLite says of a missing file only that it cannot be opened.
void demandAFolderForANewFile(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  if (!fs::exists(file) && ::access(folder.c_str(), W_OK | X_OK) != 0)
    throw DatabaseError{Kind::readOnly, folder, "it may not be written; nothing was changed"};
}

// Its owner's alone: SQLite gives the files beside a database the permissions that it has. Nothing is opened for it,
// because to close a file ends the locks that this program has on it elsewhere.
void keepPrivate(const fs::path& file) {
  ::mknod(file.c_str(), S_IFREG | S_IRUSR | S_IWUSR, 0);  // fails where it is there
  for (const char* part : {"", "-wal", "-shm"}) {
    std::error_code notOurs;
    fs::permissions(file.string() + part, fs::perms::group_all | fs::perms::others_all, fs::perm_options::remove,
                    notOurs);
  }
}

/// A name that nothing has: what was moved aside in the same second stays.
fs::path pathAside(const fs::path& file) {
  const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  const std::string first = file.string() + ".damaged-" + rfc3339(now);
  fs::path path = first;
  for (int copy = 2; fs::exists(path); ++copy) path = first + '-' + std::to_string(copy);
  return path;
}

void removeDatabase(const fs::path& file) {
  for (const char* part : {"", "-wal", "-shm"}) {
    std::error_code isNotThere;
    fs::remove(file.string() + part, isNotThere);
  }
}

// The old file keeps its name until the new one takes it. Its log goes first: the new one would be read with it.
void takePlaceOf(const fs::path& file, const fs::path& made, const fs::path& aside) {
  std::error_code hasNoLinks, isNotThere;
  fs::create_hard_link(file, aside, hasNoLinks);
  if (hasNoLinks) fs::rename(file, aside);
  for (const char* part : {"-wal", "-shm"}) fs::rename(file.string() + part, aside.string() + part, isNotThere);
  fs::rename(made, file);
  const adapters::FileDescriptor folder{
      ::open(fs::absolute(file).parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
  ::fsync(folder.get());
}

// A database that nobody has open can be read without a file beside it only where it is called immutable.
std::string immutableAddress(const fs::path& file) {
  std::string address = "file:";
  for (const char letter : file.string())
    address += letter == '%' ? "%25" : letter == '?' ? "%3f" : letter == '#' ? "%23" : std::string{letter};
  return address + "?immutable=1";
}

SQLite::Database connected(const fs::path& file, Database::Access access) {
  if (access == Database::Access::readAndWrite)
    return {file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, millisecondsToWaitForALock};
  if (fs::exists(file.string() + "-wal")) return {file.string(), SQLite::OPEN_READONLY, millisecondsToWaitForALock};
  return {immutableAddress(file), SQLite::OPEN_READONLY | SQLite::OPEN_URI, millisecondsToWaitForALock};
}

std::string commandFor(const fs::path& database, std::string command) {
  return database == ownDatabaseFile() ? command : command + " --database '" + database.string() + '\'';
}

}  // namespace

Database openDatabase(const fs::path& file, Database::Access access) {
  if (access == Database::Access::readAndWrite) {
    makeFolder(file);
    demandAFolderForANewFile(file);
    keepPrivate(file);
  }
  return {file, access, [&] { return connected(file, access); }};
}

OpenedDatabase openOrSetAside(const fs::path& file) {
  try {
    return {openDatabase(file)};
  } catch (const DatabaseError& error) {
    if (error.kind != Kind::damaged) throw;
  }
  const fs::path aside = pathAside(file);
  for (const char* part : {"", "-wal", "-shm"}) {
    std::error_code error;
    fs::rename(file.string() + part, aside.string() + part, error);
    if (error && *part == '\0')
      throw DatabaseError{Kind::unavailable, file, "it is damaged and cannot be moved aside: " + error.message()};
  }
  return {openDatabase(file), aside};
}

fs::path replaceDamaged(const fs::path& file, const History& records) {
  const fs::path made = file.string() + ".restored-" + std::to_string(::getpid());
  removeDatabase(made);  // of a program that was killed and had the same number
  try {
    openDatabase(made).replace(records, [](const History&) {});
    const fs::path aside = pathAside(file);
    takePlaceOf(file, made, aside);
    return aside;
  } catch (const fs::filesystem_error& error) {
    removeDatabase(made);
    throw DatabaseError{Kind::unavailable, file, "it is damaged and cannot be replaced: " + error.code().message()};
  } catch (...) {
    removeDatabase(made);
    throw;
  }
}

std::string exportCommand(const fs::path& database) { return commandFor(database, "mivo export --to copy.json"); }

std::string restoreCommand(const fs::path& database) { return commandFor(database, "mivo backup restore"); }

fs::path ownDatabaseFile() { return adapters::dataDirectory() / "mivo.sqlite"; }

}  // namespace mivo::host
