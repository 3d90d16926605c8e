// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QVariant>
#include <QtQml/QQmlEngine>

namespace mivo::app {

// The models that an engine shows as singletons; whoever made the engine keeps them.

template <class Model>
void giveModel(QQmlEngine& engine, Model& model) {
  engine.setProperty(Model::staticMetaObject.className(), QVariant::fromValue<QObject*>(&model));
}

/// The one that was given to the engine.
template <class Model>
Model* modelOf(const QQmlEngine& engine) {
  auto* const model =
      qobject_cast<Model*>(engine.property(Model::staticMetaObject.className()).template value<QObject*>());
  QQmlEngine::setObjectOwnership(model, QQmlEngine::CppOwnership);
  return model;
}

}  // namespace mivo::app
