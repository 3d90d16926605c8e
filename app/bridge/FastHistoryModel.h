// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <vector>

#include "app/bridge/AppLink.h"
#include "app/bridge/SeenRows.h"
#include "app/records/Records.h"

namespace mivo::app {

/// A `host::HistoryPage` and its rows.
class FastHistoryModel : public mivo::app::HistoryPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  /// `host::HistoryMonth`s, as they were when they were looked up.
  Q_PROPERTY(mivo::app::RecordRows* months MEMBER months CONSTANT)
  Q_PROPERTY(mivo::app::SeenRows* rows MEMBER rows CONSTANT)
  /// The row whose menu is open.
  Q_PROPERTY(int menuRow MEMBER menuRow)

 public:
  FastHistoryModel(AppLink to, QObject* parent);

  void follow(const host::AppFeature::State& state);
  void retell() { rows->retell(); }

  /// Begins the draft with the fast of a row.
  Q_INVOKABLE void edit(int row);
  Q_INVOKABLE void remove(int row);
  Q_INVOKABLE void lookUpMonths();
  /// What is spoken while the keyboard is at a row.
  Q_INVOKABLE QString spokenText(int row) const;

 private:
  void take(host::HistoryFacts next);

  AppLink app;
  host::HistoryFacts facts;
  int menuRow = 0;
  std::vector<Stamp> seen;
  SeenRows* const rows;
  RecordRows* const months = new RecordRows{rolesOf<host::HistoryMonth>(), this};
};

}  // namespace mivo::app
