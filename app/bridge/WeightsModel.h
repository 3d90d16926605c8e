// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

#include "app/bridge/AddWeightModel.h"
#include "app/bridge/AppLink.h"
#include "app/bridge/SeenRows.h"
#include "app/records/Records.h"

namespace mivo::app {

/// A `host::WeightsPage`, its rows, and the weight that is edited.
class WeightsModel : public mivo::app::WeightsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(mivo::app::SeenRows* rows MEMBER rows CONSTANT)
  /// The row whose menu is open.
  Q_PROPERTY(int menuRow MEMBER menuRow)
  /// The weight that is edited; once none is any more, as it was last.
  Q_PROPERTY(mivo::app::AddWeightModel* entry MEMBER entry CONSTANT)

 public:
  WeightsModel(AppLink to, QObject* parent);

  void follow(const host::AppFeature::State& state);
  void retell() { rows->retell(); }

  Q_INVOKABLE void edit(int row);
  Q_INVOKABLE void remove(int row);
  Q_INVOKABLE void removeEdited();
  /// What is spoken while the keyboard is at a row.
  Q_INVOKABLE QString spokenText(int row) const;

 private:
  const BodyWeightSample* sampleOf(int row) const { return host::weightOf(weights, static_cast<std::size_t>(row)); }
  void take(const host::AppFeature::State& state);
  void sendEdited(PresentationAction<AddWeightLogFeature::Action> action);

  AppLink app;
  List<BodyWeightSample> weights;
  WeightUnit unit = WeightUnit::kilograms;
  std::optional<UUID> edited;
  int menuRow = 0;
  std::vector<Stamp> seen;
  AddWeightModel* const entry;
  SeenRows* const rows;
};

}  // namespace mivo::app
