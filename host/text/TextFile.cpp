// SPDX-License-Identifier: MIT
#include "host/text/TextFile.h"

#include <fcntl.h>
#include <unicode/ustring.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <system_error>
#include <vector>

#include "adapters/system/FileDescriptor.h"

namespace mivo::host {
namespace {

/// Appends what there is, up to a mebibyte; 0 at the end, negative where it cannot be read.
ssize_t readSome(const adapters::FileDescriptor& file, std::string& text) {
  constexpr std::size_t step = std::size_t{1} << 20;
  const std::size_t before = text.size();
  text.resize(before + step);
  const ssize_t count = ::read(file.get(), text.data() + before, step);
  text.resize(before + static_cast<std::size_t>(count > 0 ? count : 0));
  return count;
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
  const adapters::FileDescriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  if (!file) return unreadable(path);
  std::string bytes;
  for (;;) {
    const ssize_t count = readSome(file, bytes);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return unreadable(path);
    if (count == 0) return decodedText(std::move(bytes), path);
    if (bytes.size() > largest) {
      const std::string bound = std::to_string(largest >> 20);
      return tl::unexpected{BadRecord{.file = path, .reason = "expected a file of at most " + bound + " MiB"}};
    }
  }
}

}  // namespace mivo::host
