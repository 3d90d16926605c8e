// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <system_error>

#include "mivo/platform/UserDefaults.h"

namespace mivo::adapters {

/// User defaults in a JSON file, one file a scope: an object whose members are the keys. Several objects and several
/// processes may share a file; a reader sees what another wrote last, and writers take turns, so that none undoes the
/// other's keys. Members of other kinds, perhaps of a later version, are kept.
///
/// A file that cannot be understood is renamed to "<name>.damaged-<UTC time>" and reported as an issue, and the
/// defaults start empty. One that cannot be read is reported and never written. Where writing fails that is reported
/// too, and the value holds until the object is destroyed or the file changes.
///
/// Thread: any. Cost: a value costs one look at the file's date, a write two waits for the disk.
class FileUserDefaults final : public UserDefaults {
 public:
  /// Told once when writing begins to fail, and again when it does after it had worked. It may not use these defaults
  /// itself. Thread: the writer's.
  using DidFailToWrite = std::function<void(const std::filesystem::path& file, const std::error_code& reason)>;

  explicit FileUserDefaults(const std::filesystem::path& file, DidFailToWrite didFailToWrite = {});
  ~FileUserDefaults() override;

  std::optional<Value> value(std::string_view key) const override;
  /// A number that is not finite is reported and not kept.
  void setValue(std::string_view key, std::optional<Value> value) const override;

 private:
  struct Scope;
  std::unique_ptr<Scope> scope;
};

}  // namespace mivo::adapters
