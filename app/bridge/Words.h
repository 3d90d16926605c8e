// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "app/records/Records.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

/// The `host::ControlWords`.
class Words : public mivo::app::ControlWordsRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  explicit Words(QObject* parent = nullptr) : ControlWordsRecord{parent} {
    show(host::controlWords(*dependency(&Dependencies::texts)));
  }
};

}  // namespace mivo::app
