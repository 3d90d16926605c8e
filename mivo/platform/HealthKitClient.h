// SPDX-License-Identifier: MIT
#pragma once

namespace mivo {

/// The service that keeps the user's health data. Both operations may take as long as the user does, so they are called
/// from tasks only, never on the main thread.
class HealthKitClient {
 public:
  virtual ~HealthKitClient() = default;
  /// Whether the app should still ask the user for access.
  virtual bool shouldRequestAuthorization() const = 0;
  virtual void requestAuthorization() const = 0;
};

}  // namespace mivo
