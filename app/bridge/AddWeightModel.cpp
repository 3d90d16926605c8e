// SPDX-License-Identifier: MIT
#include "AddWeightModel.h"

#include "app/bridge/DateTimeText.h"
#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/weights/WeightText.h"

namespace mivo::app {

AddWeightModel::AddWeightModel(AddWeightLogFeature::State initial, std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, held{std::move(initial)}, send{std::move(sends)} {}

void AddWeightModel::follow(const AddWeightLogFeature::State& newer) {
  // A date that was chosen is of yesterday after midnight.
  const bool isOther = !(held == newer) || dateText() != shownDate;
  held = newer;
  shownDate = dateText();
  if (isOther) Q_EMIT changed();
}

QString AddWeightModel::fieldText() const {
  return qString(
      weightFieldText(held, *dependency(&Dependencies::numberFormatter), *dependency(&Dependencies::massFormatter)));
}

QString AddWeightModel::unit() const { return qString(weightFieldUnit(held.weightUnit)); }

QString AddWeightModel::dateText() const { return dateTimeText(held.logDate); }

QString AddWeightModel::problem() const { return qString(problemText(held, *dependency(&Dependencies::texts))); }

}  // namespace mivo::app
