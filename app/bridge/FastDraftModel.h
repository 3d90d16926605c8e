// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <utility>
#include <vector>

#include "app/bridge/AppLink.h"
#include "app/records/Records.h"

namespace mivo::app {

/// The `host::FastSheet` of the draft; once there is none any more, as it was last.
class FastDraftModel : public mivo::app::FastSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  FastDraftModel(AppLink to, QObject* parent) : mivo::app::FastSheetRecord{parent}, app{std::move(to)} {}

  void follow(const host::AppFeature::State& state);
  /// Every text may read differently, though nothing was changed.
  void retell();

  Q_INVOKABLE void setStart(double instant) { app.send(AppAction::didChangeDraftStart{dateSince1970(instant)}); }
  Q_INVOKABLE void setEnd(double instant) { app.send(AppAction::didChangeDraftEnd{dateSince1970(instant)}); }
  Q_INVOKABLE void setGoal(double seconds);
  Q_INVOKABLE void setNote(const QString& text) { app.send(AppAction::didChangeDraftNote{text.toStdString()}); }
  Q_INVOKABLE void save() { app.send(AppAction::didTapSaveDraft{}); }
  Q_INVOKABLE void remove();

 private:
  AppLink app;
  std::vector<Stamp> seen;
};

}  // namespace mivo::app
