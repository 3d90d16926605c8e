// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>

#include <utility>
#include <vector>

namespace mivo::app {

/// A list of composed records for a view. Each field is a role of its name; a view is told of the rows that differ.
class RecordRows : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a model has it")
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  explicit RecordRows(QHash<int, QByteArray> roles, QObject* parent = nullptr)
      : QAbstractListModel{parent}, names{std::move(roles)} {}

  /// Takes over the values of all roles, row by row.
  void become(std::vector<QVariantList> next);

  int count() const { return static_cast<int>(rows.size()); }
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count(); }
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override { return names; }

 Q_SIGNALS:
  void countChanged();

 private:
  QHash<int, QByteArray> names;
  std::vector<QVariantList> rows;
};

}  // namespace mivo::app
