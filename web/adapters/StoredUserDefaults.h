// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "mivo/platform/UserDefaults.h"

namespace mivo::web {

/// User defaults in a JSON file of the origin's private file system: an object whose members are the keys. One that
/// cannot be understood is kept under another name and reported, and the defaults start empty. Where writing fails the
/// value holds until the page is closed. Members of other kinds, perhaps of a later
/// version, are kept. Thread: the only one.
class StoredUserDefaults final : public UserDefaults {
 public:
  /// `didFail` is told why when writing begins to fail, and again when it does after it had worked.
  explicit StoredUserDefaults(std::string file, std::function<void(const std::string& why)> didFail = {});

  /// Those of a file's content; nothing is ever written.
  static StoredUserDefaults of(std::string_view content);
  ~StoredUserDefaults() override;

  std::optional<Value> value(std::string_view key) const override;
  void setValue(std::string_view key, std::optional<Value> value) const override;

 private:
  struct Members;
  explicit StoredUserDefaults(std::unique_ptr<Members> known);

  std::string file;
  std::function<void(const std::string&)> tell;
  std::unique_ptr<Members> members;
  mutable bool isFailing = false;
};

}  // namespace mivo::web
