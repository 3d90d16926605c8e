// SPDX-License-Identifier: MIT
#include "host/files/ReadImportFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <system_error>
#include <utility>

#include "adapters/system/FileDescriptor.h"
#include "host/import/ImportReader.h"
#include "host/text/TextFile.h"

namespace mivo::host {
namespace {

constexpr std::size_t pieceInBytes = std::size_t{1} << 16;

adapters::FileDescriptor opened(const std::string& path) {
  if (path == "-") return adapters::FileDescriptor{::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)};
  return adapters::FileDescriptor{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
}

tl::unexpected<ImportFault> unreadable(const std::string& path) {
  const std::string cause = std::generic_category().message(errno);
  return tl::unexpected{ImportFault{{.file = inputName(path), .reason = "expected a file that can be read: " + cause}}};
}

tl::expected<ImportedFile, ImportFault> readImportFile(const std::string& path, const ImportSettings& settings,
                                                       const UUIDGenerator& ids) {
  const auto file = opened(path);
  if (!file) return unreadable(path);
  ImportReader reader{inputName(path), settings, ids};
  struct stat status{};
  if (::fstat(file.get(), &status) == 0 && status.st_size > 0) reader.expect(static_cast<std::size_t>(status.st_size));
  std::string piece(pieceInBytes, '\0');
  while (reader.wantsMore()) {
    const ssize_t count = ::read(file.get(), piece.data(), piece.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return unreadable(path);
    if (count == 0) break;
    reader.feed({piece.data(), static_cast<std::size_t>(count)});
  }
  return reader.finish();
}

}  // namespace

tl::expected<std::vector<ImportedFile>, ImportFault> readImportFiles(std::span<const std::string> paths,
                                                                     const ImportSettings& settings,
                                                                     const UUIDGenerator& ids) {
  std::vector<ImportedFile> files;
  for (const std::string& path : paths) {
    auto file = readImportFile(path, settings, ids);
    if (!file) return tl::unexpected{std::move(file.error())};
    files.push_back(std::move(*file));
  }
  return files;
}

}  // namespace mivo::host
