// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

#include "app/records/Records.h"
#include "host/pages/RemindersPage.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::app {

/// A `host::RemindersPage`. What is chosen is kept in the user's defaults.
class RemindersModel : public mivo::app::RemindersPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the settings have it")

 public:
  /// `changed` is called once something was written.
  RemindersModel(std::function<PageClients()> clients, Client<UserDefaults> defaults, std::function<void()> changed,
                 QObject* parent);

  /// Looks at the settings, which other programs may have changed.
  void follow();

  Q_INVOKABLE void toggleGoal();
  Q_INVOKABLE void toggleEatingWindow();
  Q_INVOKABLE void chooseEatingWindow(int place);

 private:
  void tell();

  std::function<PageClients()> clients;
  Client<UserDefaults> defaults;
  std::function<void()> told;
  std::optional<host::ReminderSettings> composed;
};

}  // namespace mivo::app
