// SPDX-License-Identifier: MIT
#include "tally/store/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace mivo::tally {
namespace {

std::filesystem::path withItsFolder(const std::filesystem::path& file) {
  std::filesystem::create_directories(std::filesystem::absolute(file).parent_path());
  return file;
}

}  // namespace

FileLock::FileLock(const std::filesystem::path& file)
    : lockFile(withItsFolder(file).string() + ".lock", file), database(file, file) {}

FileLock::Descriptor::Descriptor(const std::filesystem::path& path, const std::filesystem::path& database) {
  constexpr mode_t ownersOnly = 0600;
  number = ::open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, ownersOnly);
  if (number < 0) throw std::runtime_error(path.string() + ": " + std::strerror(errno));
  if (::flock(number, LOCK_EX | LOCK_NB) == 0) return;
  const auto reason = errno == EWOULDBLOCK ? "another mivo-tally is using it" : std::strerror(errno);
  ::close(number);
  throw std::runtime_error(database.string() + ": " + reason);
}

FileLock::Descriptor::~Descriptor() { ::close(number); }

}  // namespace mivo::tally
