// SPDX-License-Identifier: MIT
#include "Records.h"

namespace mivo::app {

void carryField(QObject& model, std::string_view name, const QVariant& value) {
  const QMetaObject& type = *model.metaObject();
  const int place = type.indexOfProperty(name.data());
  if (place >= 0) type.property(place).write(&model, value);
}

}  // namespace mivo::app
