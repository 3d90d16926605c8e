// SPDX-License-Identifier: MIT
#include "tally/store/FileIdentity.h"

#include <sys/stat.h>

namespace mivo::tally {

std::optional<FileIdentity::DeviceAndNumber> FileIdentity::lookedUp() const {
  struct stat found{};
  if (::stat(name.c_str(), &found) != 0) return std::nullopt;
  return DeviceAndNumber{found.st_dev, found.st_ino};
}

}  // namespace mivo::tally
