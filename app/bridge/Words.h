// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "app/bridge/EngineModels.h"
#include "app/records/Records.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::app {

/// The `host::ControlWords`.
class Words : public mivo::app::ControlWordsRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  explicit Words(const TextLookup& texts) { show(host::controlWords(texts)); }
  static Words* create(QQmlEngine* engine, QJSEngine*) { return modelOf<Words>(*engine); }
};

}  // namespace mivo::app
