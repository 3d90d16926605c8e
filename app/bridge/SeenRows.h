// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>
#include <QtCore/QVariant>

#include <cstddef>
#include <functional>

#include "host/pages/RowChange.h"
#include "mivo/pages/PageClients.h"

namespace mivo::app {

/// Rows that are composed when they are seen: of ten years a view asks for a dozen. It is told of those that differ.
class SeenRows : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a model has them")

 public:
  /// The values of a row's roles in their order.
  using Compose = std::function<QVariantList(std::size_t row, const PageClients&)>;
  SeenRows(QHash<int, QByteArray> roles, std::function<PageClients()> clients, Compose compose, QObject* parent);

  /// `takeOver` exchanges what rows are composed of.
  void become(const host::RowChange& change, const std::function<void()>& takeOver);
  void tellRow(std::size_t row);
  /// The texts of all rows may read differently.
  void retell();
  /// Dates of the present year do not name it.
  void retellOnAnotherDay();

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows; }
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override { return names; }

 private:
  std::function<PageClients()> clients;
  QHash<int, QByteArray> names;
  Compose compose;
  int rows = 0;
  Date toldAt;
  mutable int composedRow = -1;  // the one that was asked for last: a view asks for all its roles
  mutable QVariantList composed;
};

}  // namespace mivo::app
