// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QMetaProperty>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "app/bridge/RecordRows.h"
#include "app/bridge/ShownRecords.h"
#include "app/bridge/Text.h"
#include "mivo/store/Names.h"

namespace mivo::app {

// How a composed record gets to QML: by the names of its fields, as texts, flags and numbers.

/// The type in QML of a record; app/records/Records.h has them.
template <ValueRecord Composed>
struct ValueFor;
template <ObjectRecord Composed>
struct ObjectFor;

template <ValueRecord Composed>
auto valueOf(const Composed& composed);

/// A field in QML. Enumerators are their names, dates seconds since 1970; what is absent is an empty text, the date 0
/// or a negative number.
template <class Field>
QVariant variantOf(const Field& field) {
  if constexpr (isOptional<Field>) {
    using Value = typename Field::value_type;
    if (field) return variantOf(*field);
    if constexpr (std::is_arithmetic_v<Value>) return variantOf(Value{-1});
    if constexpr (std::is_enum_v<Value>) return QString{};
    return variantOf(Value{});
  } else if constexpr (std::is_same_v<Field, std::string>) {
    return qString(field);
  } else if constexpr (std::is_same_v<Field, Date>) {
    return secondsSince1970(field);
  } else if constexpr (std::is_enum_v<Field>) {
    return qString(enumeratorText(field));
  } else if constexpr (ValueRecord<Field>) {
    return QVariant::fromValue(valueOf(field));
  } else if constexpr (ListField<Field>) {
    if constexpr (ValueRecord<ElementOf<Field>>) {
      QList<typename ValueFor<ElementOf<Field>>::Type> values;
      for (const auto& element : field) values.append(valueOf(element));
      return QVariant::fromValue(values);
    } else {
      QStringList texts;
      for (const std::string& text : field) texts.append(qString(text));
      return texts;
    }
  } else {
    return QVariant::fromValue(field);
  }
}

/// A record as a value of QML.
template <ValueRecord Composed>
auto valueOf(const Composed& composed) {
  typename ValueFor<Composed>::Type value;
  const QMetaObject& type = value.staticMetaObject;
  fields(composed, [&](std::string_view name, const auto& field) {
    type.property(type.indexOfProperty(name.data())).writeOnGadget(&value, variantOf(field));
  });
  return value;
}

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

template <ListField Listed>
void show(const Listed& records, RecordRows& rows) {
  std::vector<QVariantList> next;
  for (const auto& record : records) next.push_back(valuesOf(record));
  rows.become(std::move(next));
}

/// Gives each property the field of its name; QML is told of those that differ.
template <class Composed>
void carry(const Composed& composed, QObject& object) {
  fields(composed, [&object]<class Field>(std::string_view name, const Field& field) {
    const QMetaProperty property = object.metaObject()->property(object.metaObject()->indexOfProperty(name.data()));
    if constexpr (RowsField<Field>)
      show(field, *property.read(&object).template value<RecordRows*>());
    else
      property.write(&object, variantOf(field));
  });
}

}  // namespace mivo::app
