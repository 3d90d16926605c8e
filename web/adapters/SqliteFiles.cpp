// SPDX-License-Identifier: MIT
// SQLite's files in the origin's private file system. One connection has a database, so nothing is locked, and no
// memory is shared: a write-ahead log needs `PRAGMA locking_mode = EXCLUSIVE`.
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <random>

#include "web/adapters/Imports.h"

namespace {

constexpr int full = 1;

struct OpenFile {
  sqlite3_file base;
  std::int32_t file;
};

std::int32_t fileOf(sqlite3_file* opened) { return reinterpret_cast<OpenFile*>(opened)->file; }

int statusOf(std::int32_t status, int failure) {
  if (status == 0) return SQLITE_OK;
  return status == full ? SQLITE_FULL : failure;
}

int close(sqlite3_file*) { return SQLITE_OK; }

int read(sqlite3_file* opened, void* into, int size, sqlite3_int64 at) {
  const int count = importedFileRead(fileOf(opened), static_cast<double>(at), into, static_cast<std::size_t>(size));
  if (count < 0) return SQLITE_IOERR_READ;
  if (count == size) return SQLITE_OK;
  std::memset(static_cast<char*>(into) + count, 0, static_cast<std::size_t>(size - count));
  return SQLITE_IOERR_SHORT_READ;
}

int write(sqlite3_file* opened, const void* bytes, int size, sqlite3_int64 at) {
  return statusOf(importedFileWrite(fileOf(opened), static_cast<double>(at), bytes, static_cast<std::size_t>(size)),
                  SQLITE_IOERR_WRITE);
}

int truncate(sqlite3_file* opened, sqlite3_int64 size) {
  return statusOf(importedFileTruncate(fileOf(opened), static_cast<double>(size)), SQLITE_IOERR_TRUNCATE);
}

int sync(sqlite3_file* opened, int) { return statusOf(importedFileFlush(fileOf(opened)), SQLITE_IOERR_FSYNC); }

int fileSize(sqlite3_file* opened, sqlite3_int64* size) {
  *size = static_cast<sqlite3_int64>(importedFileSize(fileOf(opened)));
  return SQLITE_OK;
}

int lock(sqlite3_file*, int) { return SQLITE_OK; }

int checkReservedLock(sqlite3_file*, int* isReserved) {
  *isReserved = 0;
  return SQLITE_OK;
}

int fileControl(sqlite3_file*, int, void*) { return SQLITE_NOTFOUND; }
int sectorSize(sqlite3_file*) { return 4096; }
/// As on other systems. Without it the log is filled up to the end of a sector, behind what is a commit already: where
/// there is no room for that, a change would be refused that is there when the database is opened again.
int deviceCharacteristics(sqlite3_file*) { return SQLITE_IOCAP_POWERSAFE_OVERWRITE; }

constexpr sqlite3_io_methods fileMethods{.iVersion = 1,
                                         .xClose = close,
                                         .xRead = read,
                                         .xWrite = write,
                                         .xTruncate = truncate,
                                         .xSync = sync,
                                         .xFileSize = fileSize,
                                         .xLock = lock,
                                         .xUnlock = lock,
                                         .xCheckReservedLock = checkReservedLock,
                                         .xFileControl = fileControl,
                                         .xSectorSize = sectorSize,
                                         .xDeviceCharacteristics = deviceCharacteristics,
                                         .xShmMap = nullptr,
                                         .xShmLock = nullptr,
                                         .xShmBarrier = nullptr,
                                         .xShmUnmap = nullptr,
                                         .xFetch = nullptr,
                                         .xUnfetch = nullptr};

int open(sqlite3_vfs*, const char* name, sqlite3_file* opened, int flags, int* outFlags) {
  opened->pMethods = nullptr;
  if (name == nullptr) return SQLITE_CANTOPEN;  // temporary ones are kept in memory
  const std::int32_t file = importedFileOpen(name, std::strlen(name), (flags & SQLITE_OPEN_CREATE) != 0);
  if (file < 0) return SQLITE_CANTOPEN;
  reinterpret_cast<OpenFile*>(opened)->file = file;
  opened->pMethods = &fileMethods;
  if (outFlags != nullptr) *outFlags = flags;
  return SQLITE_OK;
}

int remove(sqlite3_vfs*, const char* name, int) {
  return statusOf(importedFileRemove(name, std::strlen(name)), SQLITE_IOERR_DELETE);
}

int access(sqlite3_vfs*, const char* name, int, int* isThere) {
  *isThere = importedFileOpen(name, std::strlen(name), false) >= 0 ? 1 : 0;
  return SQLITE_OK;
}

int fullPathname(sqlite3_vfs*, const char* name, int room, char* out) {
  const std::size_t size = std::strlen(name) + 1;
  if (size > static_cast<std::size_t>(room)) return SQLITE_CANTOPEN;
  std::memcpy(out, name, size);
  return SQLITE_OK;
}

int randomness(sqlite3_vfs*, int size, char* out) {
  std::random_device random;
  std::generate_n(out, size, [&random] { return static_cast<char>(random()); });
  return size;
}

int doNotSleep(sqlite3_vfs*, int) { return 0; }

int currentTime(sqlite3_vfs*, sqlite3_int64* milliseconds) {
  constexpr sqlite3_int64 julianDayOf1970 = 210'866'760'000'000;
  using namespace std::chrono;
  *milliseconds = julianDayOf1970 + floor<std::chrono::milliseconds>(system_clock::now().time_since_epoch()).count();
  return SQLITE_OK;
}

int currentDay(sqlite3_vfs* files, double* day) {
  constexpr double millisecondsPerDay = 86'400'000;
  sqlite3_int64 milliseconds = 0;
  currentTime(files, &milliseconds);
  *day = static_cast<double>(milliseconds) / millisecondsPerDay;
  return SQLITE_OK;
}

int lastError(sqlite3_vfs*, int, char*) { return 0; }

sqlite3_vfs files{.iVersion = 2,
                  .szOsFile = sizeof(OpenFile),
                  .mxPathname = 256,
                  .pNext = nullptr,
                  .zName = "browser",
                  .pAppData = nullptr,
                  .xOpen = open,
                  .xDelete = remove,
                  .xAccess = access,
                  .xFullPathname = fullPathname,
                  .xDlOpen = nullptr,
                  .xDlError = nullptr,
                  .xDlSym = nullptr,
                  .xDlClose = nullptr,
                  .xRandomness = randomness,
                  .xSleep = doNotSleep,
                  .xCurrentTime = currentDay,
                  .xGetLastError = lastError,
                  .xCurrentTimeInt64 = currentTime,
                  .xSetSystemCall = nullptr,
                  .xGetSystemCall = nullptr,
                  .xNextSystemCall = nullptr};

}  // namespace

extern "C" {
int sqlite3_os_init() { return sqlite3_vfs_register(&files, 1); }
int sqlite3_os_end() { return SQLITE_OK; }
}
