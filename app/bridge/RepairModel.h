// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

#include "app/records/Records.h"
#include "host/app/AppFeature.h"

namespace mivo::app {

/// The `host::RepairSheet` of what is proposed; once nothing is any more, as it was last.
class RepairModel : public mivo::app::RepairSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = host::AppFeature::Action;
  RepairModel(std::function<PageClients()> clients, std::function<void(Action)> send);

  void follow(const std::optional<host::HistoryChange>& proposal);

  Q_INVOKABLE void confirm() { send(Action::didConfirmOverlapRepair{}); }

 private:
  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  std::optional<host::HistoryChange> change;
};

}  // namespace mivo::app
