// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>

#include <vector>

#include "app/bridge/Carry.h"

namespace mivo::app {

/// A list of composed records for a view. Each field is a role of its name; a view is told of the rows that differ.
class RecordRows : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a model has it")
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  explicit RecordRows(QHash<int, QByteArray> roles) : names{std::move(roles)} {}

  template <class Listed>
  void show(const std::vector<Listed>& records) {
    std::vector<QVariantList> next;
    for (const Listed& record : records) next.push_back(valuesOf(record));
    become(std::move(next));
  }

  int count() const { return static_cast<int>(rows.size()); }
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count(); }
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override { return names; }

 Q_SIGNALS:
  void countChanged();

 private:
  void become(std::vector<QVariantList> next);

  QHash<int, QByteArray> names;
  std::vector<QVariantList> rows;
};

}  // namespace mivo::app
