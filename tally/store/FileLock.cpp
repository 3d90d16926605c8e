// SPDX-License-Identifier: MIT
#include "tally/store/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace mivo::tally {

FileLock::FileLock(const std::filesystem::path& file) {
  std::filesystem::create_directories(std::filesystem::absolute(file).parent_path());
  const auto lockFile = file.string() + ".lock";
  descriptor_ = ::open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (descriptor_ < 0) throw std::runtime_error(lockFile + ": " + std::strerror(errno));
  if (::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return;
  const auto reason = errno == EWOULDBLOCK ? "another mivo-tally is using it" : std::strerror(errno);
  ::close(descriptor_);
  throw std::runtime_error(file.string() + ": " + reason);
}

FileLock::~FileLock() { ::close(descriptor_); }

}  // namespace mivo::tally
