// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// What JavaScript gives the app: functions of the module "mivo" of its imports. See web/exchange for how texts go.

#define MIVO_IMPORT(name) [[clang::import_module("mivo"), clang::import_name(name)]]

extern "C" {

// Files of the origin's private file system; see `storedFiles.mjs`. A status is 0, or 1 for a full disk, or 2.

/// A number for the file, below 0 where it is not there and is not to be made, or cannot.
MIVO_IMPORT("fileOpen") std::int32_t importedFileOpen(const char* name, std::size_t size, bool isMade);
MIVO_IMPORT("fileSize") double importedFileSize(std::int32_t file);
/// How many bytes there were; below 0 where reading failed.
MIVO_IMPORT("fileRead") std::int32_t importedFileRead(std::int32_t file, double at, void* into, std::size_t size);
MIVO_IMPORT("fileWrite")
std::int32_t importedFileWrite(std::int32_t file, double at, const void* bytes, std::size_t size);
MIVO_IMPORT("fileTruncate") std::int32_t importedFileTruncate(std::int32_t file, double size);
MIVO_IMPORT("fileFlush") std::int32_t importedFileFlush(std::int32_t file);
MIVO_IMPORT("fileRemove") std::int32_t importedFileRemove(const char* name, std::size_t size);
/// Puts a new file in the place of one of that name, if there is one, whole or not at all.
MIVO_IMPORT("fileReplace")
std::int32_t importedFileReplace(const char* name, std::size_t size, const char* bytes, std::size_t byteCount);
/// Of all files, each with a line break behind it.
MIVO_IMPORT("fileNames") void importedFileNames(std::string* into);

// Files that a person chose, by the paths that the page gave them.

/// Below 0 where there is none.
MIVO_IMPORT("chosenSize") double importedChosenSize(const char* path, std::size_t size);
/// Whether it could be read.
MIVO_IMPORT("chosenPiece")
bool importedChosenPiece(std::string* into, const char* path, std::size_t size, double at, double count);
/// Hands a file to the person.
MIVO_IMPORT("written")
void importedWritten(const char* name, std::size_t nameSize, const char* type, std::size_t typeSize, const char* bytes,
                     std::size_t size);

/// Has the exported function `run` called with the ticket, not before this call returned and so much time has passed.
MIVO_IMPORT("later") void importedLater(double ticket, double milliseconds);

/// Asks for a page; the exported function `answered` is called with the ticket, once.
MIVO_IMPORT("fetch") void importedFetch(double ticket, const char* url, std::size_t size);
MIVO_IMPORT("abortFetch") void importedAbortFetch(double ticket);

/// The words for dates, as `readDateWords` reads them.
MIVO_IMPORT("dateWords") void importedDateWords(std::string* into);
MIVO_IMPORT("smallLetters") void importedSmallLetters(std::string* into, const char* text, std::size_t size);

/// The names of pages and lists that read differently, each with a line break behind it.
MIVO_IMPORT("changed") void importedChanged(const char* names, std::size_t size);
}

#undef MIVO_IMPORT
