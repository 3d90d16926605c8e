// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "mivo/platform/Client.h"
#include "mivo/platform/HealthKitClient.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// Of the path, in the app's user defaults.
inline constexpr std::string_view linkedHealthFileKey = "health.linkedFile";

/// Health data on a machine that has no service for it: the export of a phone's health app, as a file that the user
/// links. Where it lies is kept in user defaults; access is asked for until one is linked. Thread: any.
class LinkedHealthClient final : public HealthKitClient {
 public:
  /// A history that is not the defaults' own is offered none: the file's weights would be poured into another person's.
  explicit LinkedHealthClient(Client<UserDefaults> defaults, bool isOffered = true);

  bool isOffered() const { return offered; }
  /// Its path; empty where none is linked.
  std::string file() const;
  void link(const std::string& path) const;
  void unlink() const;

  void shouldRequestAuthorization(std::function<void(bool)> completion) const override;
  /// The user allowed it by choosing the file, which was linked before: there is no further question.
  void requestAuthorization(std::function<void()> completion) const override { completion(); }

 private:
  Client<UserDefaults> defaults;
  bool offered;
};

}  // namespace mivo::host
