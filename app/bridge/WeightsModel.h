// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

#include "app/bridge/AddWeightModel.h"
#include "app/bridge/SeenRows.h"
#include "host/app/AppFeature.h"
#include "host/pages/WeightsPage.h"

namespace mivo::app {

/// A `host::WeightsPage`, its rows, and the weight that is edited.
class WeightsModel : public SeenRows {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString openLabel MEMBER openLabel NOTIFY countChanged)
  Q_PROPERTY(QString title MEMBER title NOTIFY textsChanged)
  Q_PROPERTY(QString note MEMBER note NOTIFY textsChanged)
  Q_PROPERTY(int count MEMBER count NOTIFY countChanged)
  Q_PROPERTY(QString menuTitle MEMBER menuTitle NOTIFY textsChanged)
  Q_PROPERTY(QString editLabel MEMBER editLabel NOTIFY textsChanged)
  Q_PROPERTY(QString saveLabel MEMBER saveLabel NOTIFY textsChanged)
  Q_PROPERTY(QString removeLabel MEMBER removeLabel NOTIFY textsChanged)
  Q_PROPERTY(bool isEditing READ isEditing NOTIFY isEditingChanged)
  /// The weight that is edited; once none is any more, as it was last.
  Q_PROPERTY(mivo::app::AddWeightModel* entry READ entry CONSTANT)

 public:
  using Action = host::AppFeature::Action;
  WeightsModel(std::function<PageClients()> clients, std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const host::AppFeature::State& state);
  bool isEditing() const { return edited.has_value(); }
  AddWeightModel* entry() { return &form; }

  Q_INVOKABLE void edit(int row);
  Q_INVOKABLE void remove(int row);
  Q_INVOKABLE void removeEdited();
  Q_INVOKABLE void dismissEdited();
  /// What is spoken while the keyboard is at a row.
  Q_INVOKABLE QString spokenText(int row) const;

 Q_SIGNALS:
  void textsChanged();
  void countChanged();
  void isEditingChanged();

 private:
  const BodyWeightSample* sampleOf(int row) const { return host::weightOf(weights, static_cast<std::size_t>(row)); }
  void take(const host::AppFeature::State& state);
  void sendEdited(PresentationAction<AddWeightLogFeature::Action> action);

  std::function<void(Action)> send;
  List<BodyWeightSample> weights;
  WeightUnit unit = WeightUnit::kilograms;
  std::optional<UUID> edited;
  AddWeightModel form;
  std::vector<Stamp> seen;
  QString openLabel, title, note, menuTitle, editLabel, saveLabel, removeLabel;
  int count = 0;
};

}  // namespace mivo::app
