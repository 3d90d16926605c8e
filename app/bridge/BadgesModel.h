// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>

#include "app/records/Records.h"

namespace mivo::app {

/// A `BadgesPage`.
class BadgesModel : public mivo::app::BadgesPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = BadgeSummaryFeature::Action;
  explicit BadgesModel(std::function<void(Action)> sends) : send{std::move(sends)} {}

  Q_INVOKABLE void openMilestones() { send(Action::didTapMilestones{}); }
  Q_INVOKABLE void openStreaks() { send(Action::didTapStreaks{}); }
  Q_INVOKABLE void closeList() {
    using Closed = PresentationAction<BadgeSummaryFeature::Destination::Action>;
    if (!list.isEmpty()) send(Action::destination{Closed::dismiss{}});
  }

 private:
  std::function<void(Action)> send;
};

}  // namespace mivo::app
