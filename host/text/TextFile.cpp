// SPDX-License-Identifier: MIT
#include "host/text/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unicode/ustring.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <vector>

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

std::optional<std::string> utf8FromUtf16(std::string_view bytes, bool littleEndian) {
  if (bytes.size() % 2 != 0) return std::nullopt;
  std::vector<UChar> units(bytes.size() / 2);
  for (std::size_t index = 0; index < units.size(); ++index) {
    const auto first = static_cast<unsigned char>(bytes[2 * index]);
    const auto second = static_cast<unsigned char>(bytes[2 * index + 1]);
    units[index] = static_cast<UChar>(littleEndian ? first | second << 8 : first << 8 | second);
  }
  std::string text(units.size() * 3, '\0');  // the longest that a unit becomes
  std::int32_t length = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strToUTF8(text.data(), static_cast<std::int32_t>(text.size()), &length, units.data(),
              static_cast<std::int32_t>(units.size()), &status);
  if (U_FAILURE(status)) return std::nullopt;
  text.resize(static_cast<std::size_t>(length));
  return text;
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

tl::expected<std::string, BadRecord> decodedText(std::string bytes, const std::string& file) {
  const std::string_view text = bytes;
  if (text.starts_with("\xEF\xBB\xBF")) return bytes.erase(0, 3);
  const bool isLittleEndian = text.starts_with("\xFF\xFE");
  if (!isLittleEndian && !text.starts_with("\xFE\xFF")) return bytes;
  auto converted = utf8FromUtf16(text.substr(2), isLittleEndian);
  if (converted) return std::move(*converted);
  return tl::unexpected{BadRecord{.file = file, .reason = "expected UTF-16 text, as its first two bytes announce"}};
}

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
