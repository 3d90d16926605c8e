// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/Client.h"
#include "mivo/platform/HealthKitClient.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// Health data on a machine that has no service for it: the user's exports of other apps. The user is asked once
/// whether Mivo may take weights from them, and the answer is kept in user defaults. Thread: any.
class StoredHealthClient final : public HealthKitClient {
 public:
  explicit StoredHealthClient(Client<UserDefaults> defaults);
  bool shouldRequestAuthorization() const override;
  /// The user allowed it by asking for it: there is no further question.
  void requestAuthorization() const override;

 private:
  Client<UserDefaults> defaults;
};

}  // namespace mivo::host
