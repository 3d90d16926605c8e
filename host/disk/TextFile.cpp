// SPDX-License-Identifier: MIT
#include "host/disk/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "adapters/system/FileDescriptor.h"

namespace mivo::host {
namespace {

/// Room for all of a file and the read that finds its end, so that it is read into place at once; for what has no size,
/// a pipe, a beginning.
std::size_t firstRoom(const adapters::FileDescriptor& file, std::size_t largest) {
  constexpr std::size_t beginning = std::size_t{1} << 16;
  struct stat status{};
  if (::fstat(file.get(), &status) != 0 || status.st_size <= 0) return beginning;
  return std::min(static_cast<std::size_t>(status.st_size), largest) + 1;
}

tl::unexpected<BadRecord> unreadable(const std::string& path) {
  const std::string cause = std::generic_category().message(errno);
  return tl::unexpected{BadRecord{.file = path, .reason = "expected a file that can be read: " + cause}};
}

tl::expected<std::string, BadRecord> readAll(const adapters::FileDescriptor& file, const std::string& path,
                                             std::size_t largest) {
  if (!file) return unreadable(path);
  std::string bytes(firstRoom(file, largest), '\0');
  std::size_t filled = 0;
  for (;;) {
    if (filled == bytes.size()) bytes.resize(2 * filled);
    const ssize_t count = ::read(file.get(), bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return unreadable(path);
    filled += static_cast<std::size_t>(count);
    if (count == 0) break;
    if (filled > largest) {
      const std::string bound = std::to_string(largest >> 20);
      return tl::unexpected{BadRecord{.file = path, .reason = "expected a file of at most " + bound + " MiB"}};
    }
  }
  bytes.resize(filled);
  return decodedText(std::move(bytes), path);
}

}  // namespace

tl::expected<std::string, BadRecord> readTextFile(const std::string& path, std::size_t largest) {
  return readAll(adapters::FileDescriptor{::open(path.c_str(), O_RDONLY | O_CLOEXEC)}, path, largest);
}

std::string inputName(const std::string& path) { return path == "-" ? "standard input" : path; }

tl::expected<std::string, BadRecord> readTextInput(const std::string& path) {
  if (path != "-") return readTextFile(path);
  return readAll(adapters::FileDescriptor{::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)}, inputName(path),
                 largestFileInBytes);
}

}  // namespace mivo::host
