// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>

#include "app/records/Records.h"

namespace mivo::app {

/// A `host::DateTimeChoice`, and the entry that it is composed of.
class DateTimeChoiceModel : public mivo::app::DateTimeChoiceRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app makes them")

 public:
  explicit DateTimeChoiceModel(std::function<PageClients()> clients);

  /// Begins with a date.
  Q_INVOKABLE void begin(double date);
  Q_INVOKABLE void turnDay(int place) { become(withDay(entry, place)); }
  Q_INVOKABLE void turnHour(int place) { become(withHour(entry, place)); }
  Q_INVOKABLE void turnMinute(int place) { become(withMinute(entry, place)); }
  /// What was typed, where it is a date of the list; false for anything else.
  Q_INVOKABLE bool type(const QString& written);
  /// A day of the list; `of` is `today`, which makes a binding notice that the list has moved on.
  Q_INVOKABLE QString dayText(int place, double of) const;
  Q_INVOKABLE QString hourText(int place) const;
  Q_INVOKABLE QString minuteText(int place) const;

 private:
  void become(const host::DateTimeEntry& next);

  std::function<PageClients()> clients;
  host::DateTimeEntry entry;
};

}  // namespace mivo::app
