// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace mivo {

/// The service that keeps the user's health data. Both operations may take as long as the user does: they are called
/// from tasks only, never on the main thread, and call back once, on any thread, and maybe before they return.
class HealthKitClient {
 public:
  virtual ~HealthKitClient() = default;
  /// Whether the app should still ask the user for access.
  virtual void shouldRequestAuthorization(std::function<void(bool)> completion) const = 0;
  /// Asks; `completion` is called when the user has answered, whatever that was.
  virtual void requestAuthorization(std::function<void()> completion) const = 0;
};

}  // namespace mivo
