// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/store/Names.h"
#include "mivo/store/Print.h"

namespace mivo::app {

// How a composed record gets to QML: by the names of its fields, as texts, flags and numbers. Enumerators go as their
// names, dates as seconds since 1970, what is absent as an empty text or 0.

inline QVariant variantOf(const std::string& text) { return QString::fromStdString(text); }
inline QVariant variantOf(Date date) { return secondsSince1970(date); }

template <class Number>
  requires std::is_arithmetic_v<Number>
QVariant variantOf(Number number) {
  return QVariant::fromValue(number);
}

template <class Enumeration>
  requires std::is_enum_v<Enumeration>
QVariant variantOf(Enumeration value) {
  return QString::fromStdString(enumeratorText(value));
}

template <class Value>
QVariant variantOf(const std::optional<Value>& value) {
  if constexpr (std::is_enum_v<Value>) return value ? variantOf(*value) : QString{};
  return variantOf(value.value_or(Value{}));
}

/// What has a place in a property or a role; lists have rows of their own.
template <class Field>
concept Carried = requires(const Field& field) { variantOf(field); };

/// The roles of rows that show such records: a field each, from Qt::UserRole on.
template <class Listed>
QHash<int, QByteArray> rolesOf() {
  QHash<int, QByteArray> names;
  const Listed record{};
  fields(record, [&names](std::string_view name, const auto&) {
    names.insert(Qt::UserRole + static_cast<int>(names.size()),
                 QByteArray{name.data(), static_cast<qsizetype>(name.size())});
  });
  return names;
}

/// The values of the roles in their order.
template <class Listed>
QVariantList valuesOf(const Listed& record) {
  QVariantList values;
  fields(record, [&values](std::string_view, const auto& field) { values.append(variantOf(field)); });
  return values;
}

}  // namespace mivo::app
