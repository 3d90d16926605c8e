// SPDX-License-Identifier: MIT
#include "host/files/ReadImportFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

#include "adapters/archive/ZipArchive.h"
#include "adapters/system/FileDescriptor.h"
#include "host/database/ReadDatabaseBytes.h"
#include "host/disk/TextFile.h"
#include "host/import/ImportReader.h"

namespace mivo::host {
namespace {

constexpr std::size_t pieceInBytes = std::size_t{1} << 16;

adapters::FileDescriptor opened(const std::string& path) {
  if (path == "-") return adapters::FileDescriptor{::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)};
  return adapters::FileDescriptor{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
}

ImportFault fault(const std::string& file, std::string reason) {
  return {.bad = {.file = file, .reason = std::move(reason)}};
}

/// Reads the files of one call, one after the other.
class Files {
 public:
  Files(const ImportSettings& importSettings, const UUIDGenerator& uuids, const ImportWatch& importWatch)
      : settings{importSettings}, ids{uuids}, watch{importWatch} {}

  std::optional<ImportFault> read(const std::string& path);

  std::vector<ImportedFile> files;

 private:
  bool goesOn(std::size_t bytes) {
    done += bytes;
    if (watch.progress && total > 0)
      watch.progress(std::min(1.0, static_cast<double>(done) / static_cast<double>(total)));
    return !watch.stop.stopRequested();
  }
  std::optional<ImportFault> taken(tl::expected<ImportedFile, ImportFault> file) {
    if (!file) return std::move(file.error());
    files.push_back(std::move(*file));
    return std::nullopt;
  }
  std::optional<ImportFault> readPlain(const adapters::FileDescriptor& file, const std::string& name,
                                       std::string_view beginning);
  std::optional<ImportFault> readZip(const adapters::FileDescriptor& file, const std::string& name);

  const ImportSettings& settings;
  const UUIDGenerator& ids;
  const ImportWatch& watch;
  std::uint64_t done = 0, total = 0;  // bytes of the present file
};

ssize_t readPiece(const adapters::FileDescriptor& file, std::string& piece) {
  piece.resize(pieceInBytes);
  for (;;) {
    const ssize_t count = ::read(file.get(), piece.data(), piece.size());
    if (count < 0 && errno == EINTR) continue;
    piece.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return count;
  }
}

ImportFault unreadable(const std::string& name) {
  return fault(name, "expected a file that can be read: " + std::generic_category().message(errno));
}

ImportFault cancelled(const std::string& name) { return fault(name, "cancelled; nothing was changed"); }

/// What was written to a database last may stand in the log beside it, as long as a program has it open.
bool hasLogBesideIt(const std::string& path) {
  struct stat status{};
  return ::stat((path + "-wal").c_str(), &status) == 0 && status.st_size > 0;
}

std::optional<ImportFault> Files::read(const std::string& path) {
  const std::string name = inputName(path);
  const auto file = opened(path);
  std::string piece;
  if (!file || readPiece(file, piece) < 0) return unreadable(name);
  if (isDatabase(piece) && hasLogBesideIt(path))
    return fault(name, "expected a database that no program has open; its latest changes are in " + path + "-wal");
  struct stat status{};
  done = 0;
  total = ::fstat(file.get(), &status) == 0 ? static_cast<std::uint64_t>(std::max<off_t>(status.st_size, 0)) : 0;
  return adapters::ZipArchive::isZip(piece) ? readZip(file, name) : readPlain(file, name, piece);
}

std::optional<ImportFault> Files::readPlain(const adapters::FileDescriptor& file, const std::string& name,
                                            std::string_view beginning) {
  ImportReader reader{name, settings, ids};
  reader.expect(total);
  reader.feed(beginning);
  std::string piece;
  while (reader.wantsMore()) {
    const ssize_t count = readPiece(file, piece);
    if (count < 0) return unreadable(name);
    if (count == 0) break;
    if (!goesOn(piece.size())) return cancelled(name);
    reader.feed(piece);
  }
  return taken(reader.finish());
}

/// Whatever in it is known is read; an archive in which nothing is known is refused.
std::optional<ImportFault> Files::readZip(const adapters::FileDescriptor& file, const std::string& name) {
  auto zip = adapters::ZipArchive::open(file.get());
  if (!zip) return fault(name, "expected a zip archive that can be read, as a file: " + zip.error());
  total = 0;
  for (const auto& entry : zip->entries()) total += entry.size;
  bool isKnown = false;
  for (const auto& entry : zip->entries()) {
    const std::string entryName = name + '/' + quotable(entry.name);
    ImportReader reader{entryName, settings, ids};
    reader.expect(entry.size);
    bool isGoingOn = true;
    const auto outcome = zip->read(entry, [&](std::string_view piece) {
      isGoingOn = goesOn(piece.size());
      reader.feed(piece);
      return isGoingOn && reader.wantsMore();
    });
    if (!isGoingOn) return cancelled(name);
    if (!outcome) return fault(entryName, "expected a file that can be read from the archive: " + outcome.error());
    auto bad = taken(reader.finish());
    if (bad && !bad->isUnknown) return bad;
    isKnown = isKnown || !bad;
  }
  if (isKnown) return std::nullopt;
  return fault(name,
               "expected a file in it that can be imported, found none among " + std::to_string(zip->entries().size()));
}

}  // namespace

tl::expected<std::vector<ImportedFile>, ImportFault> readImportFiles(std::span<const std::string> paths,
                                                                     const ImportSettings& settings,
                                                                     const UUIDGenerator& ids,
                                                                     const ImportWatch& watch) {
  Files reader{settings, ids, watch};
  for (const std::string& path : paths)
    if (auto bad = reader.read(path)) return tl::unexpected{std::move(*bad)};
  return std::move(reader.files);
}

}  // namespace mivo::host
