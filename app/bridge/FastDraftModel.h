// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <vector>

#include "app/records/Records.h"
#include "host/app/AppFeature.h"

namespace mivo::app {

/// The `host::FastSheet` of the draft; once there is none any more, as it was last.
class FastDraftModel : public mivo::app::FastSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = host::AppFeature::Action;
  FastDraftModel(std::function<PageClients()> clients, std::function<void(Action)> send);

  void follow(const host::AppFeature::State& state);
  /// Every text may read differently, though nothing was changed.
  void retell();

  Q_INVOKABLE void setStart(double instant) { send(Action::didChangeDraftStart{dateSince1970(instant)}); }
  Q_INVOKABLE void setEnd(double instant) { send(Action::didChangeDraftEnd{dateSince1970(instant)}); }
  Q_INVOKABLE void setGoal(double seconds);
  Q_INVOKABLE void setNote(const QString& text) { send(Action::didChangeDraftNote{text.toStdString()}); }
  Q_INVOKABLE void save() { send(Action::didTapSaveDraft{}); }
  Q_INVOKABLE void remove();

 private:
  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  std::optional<host::FastDraft> draft;
  List<host::FastRecord> fasts;
  std::vector<Stamp> seen;
};

}  // namespace mivo::app
