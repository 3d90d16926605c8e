// SPDX-License-Identifier: MIT
#include "adapters/system/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
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

  void takePlace() {
    if (::fsync(file.get()) != 0 || ::rename(name.c_str(), target.c_str()) != 0) fail(target);
    name.clear();
    const FileDescriptor folder{::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (!folder || ::fsync(folder.get()) != 0) fail(target);
  }

 private:
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

}  // namespace mivo::adapters
