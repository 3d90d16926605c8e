// SPDX-License-Identifier: MIT
#include "Texts.h"

#include "app/bridge/Text.h"

namespace mivo::app {

Texts* Texts::create(QQmlEngine*, QJSEngine*) { return new Texts; }

QString Texts::text(const QString& key) const {
  return qString(dependency(&Dependencies::texts)->text(key.toStdString()));
}

QString Texts::number(int value) const {
  return qString(dependency(&Dependencies::numberFormatter)->string(std::int64_t{value}));
}

}  // namespace mivo::app
