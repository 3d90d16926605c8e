// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "app/records/Records.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/store/Store.h"

namespace mivo::app {

/// A `RoadmapPage`. It has a store of its own, which ends with it.
class RoadmapModel : public mivo::app::RoadmapPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made while the roadmap is shown")

 public:
  explicit RoadmapModel(const Dependencies& all);

  const RoadmapPage& page() const { return composed; }

  Q_INVOKABLE void choose(int filter);
  Q_INVOKABLE void vote(int row);
  Q_INVOKABLE void tryAgain() { store.send(Feature::Action::didTapTryAgain{}); }

 private:
  using Feature = RoadmapListFeature;

  Store<Feature> store;
  RoadmapPage composed;
  Subscription following;
};

}  // namespace mivo::app
