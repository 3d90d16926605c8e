// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <utility>

#include "app/bridge/AppLink.h"
#include "app/records/Records.h"

namespace mivo::app {

/// The `host::RepairSheet` of what is proposed; once nothing is any more, as it was last.
class RepairModel : public mivo::app::RepairSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  RepairModel(AppLink to, QObject* parent) : mivo::app::RepairSheetRecord{parent}, app{std::move(to)} {}

  void follow(const host::AppFeature::State& state) {
    if (*state.overlapRepair) show(composeRepairSheet(**state.overlapRepair, app.clients()));
  }

  Q_INVOKABLE void confirm() { app.send(AppAction::didConfirmOverlapRepair{}); }

 private:
  AppLink app;
};

}  // namespace mivo::app
