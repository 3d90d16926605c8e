// SPDX-License-Identifier: MIT
#include "adapters/system/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>

#include "adapters/system/FileDescriptor.h"

namespace mivo::adapters {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& file) {
  throw std::system_error{errno, std::generic_category(), file.string() + ": could not be written"};
}

/// A new file beside the one that it is to replace; removed again unless it took that place.
class Replacement {
 public:
  explicit Replacement(const fs::path& replaced) : target{replaced}, name{replaced.string() + ".XXXXXX"} {
    file = FileDescriptor{::mkostemp(name.data(), O_CLOEXEC)};
    if (!file) fail(target);
  }
  ~Replacement() {
    if (!name.empty()) ::unlink(name.c_str());
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  void write(std::string_view content) const {
    while (!content.empty()) {
      const auto written = ::write(file.get(), content.data(), content.size());
      if (written < 0 && errno != EINTR) fail(target);
      if (written > 0) content.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  /// Readable by whom the old file was, else by its owner only.
  void keepPermissions() const {
    struct stat old{};
    if (::stat(target.c_str(), &old) == 0 && ::fchmod(file.get(), old.st_mode & 07777) != 0) fail(target);
  }

  void takePlace(Existing existing = Existing::replaced) {
    if (::fsync(file.get()) != 0 || !isRenamed(existing)) fail(target);
    name.clear();
    const FileDescriptor folder{::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (!folder || ::fsync(folder.get()) != 0) fail(target);
  }

 private:
  bool isRenamed(Existing existing) const {
    if (existing == Existing::replaced) return ::rename(name.c_str(), target.c_str()) == 0;
    if (::renameat2(AT_FDCWD, name.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno != EINVAL && errno != ENOSYS) return false;
    struct stat other{};  // a file system that cannot tell both at once
    if (::lstat(target.c_str(), &other) != 0) return ::rename(name.c_str(), target.c_str()) == 0;
    errno = EEXIST;
    return false;
  }

  const fs::path& target;
  std::string name;
  FileDescriptor file;
};

}  // namespace

void writeAtomically(const fs::path& file, std::string_view content) {
  const fs::path target = fs::weakly_canonical(fs::absolute(file));
  fs::create_directories(target.parent_path());
  Replacement replacement{target};
  replacement.write(content);
  replacement.keepPermissions();
  replacement.takePlace();
}

void writePrivately(const fs::path& file, std::string_view content, Existing existing) {
  const fs::path target = fs::weakly_canonical(fs::absolute(file));
  Replacement replacement{target};
  replacement.write(content);
  replacement.takePlace(existing);
}

}  // namespace mivo::adapters
