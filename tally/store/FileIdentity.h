// SPDX-License-Identifier: MIT
#pragma once
#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <utility>

namespace mivo::tally {

/// Remembers which file a path led to. Who has a file open does not notice when it is removed, or another takes its
/// place: what is written then is lost with the last descriptor.
class FileIdentity {
 public:
  explicit FileIdentity(std::filesystem::path path) : name(std::move(path)), first(lookedUp()) {}
  /// False once the path leads elsewhere, or nowhere; true where it led nowhere from the beginning.
  bool isStillThere() const { return !first || lookedUp() == first; }
  const std::filesystem::path& path() const { return name; }

 private:
  using DeviceAndNumber = std::pair<dev_t, ino_t>;
  std::optional<DeviceAndNumber> lookedUp() const;

  std::filesystem::path name;
  std::optional<DeviceAndNumber> first;
};

}  // namespace mivo::tally
