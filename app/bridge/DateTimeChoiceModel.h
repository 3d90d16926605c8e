// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

#include "app/bridge/Carry.h"
#include "host/pages/DateTimeChoice.h"

namespace mivo::app {

/// A `host::DateTimeChoice`, and the entry that it is composed of.
class DateTimeChoiceModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app makes them")
  Q_PROPERTY(double instant MEMBER instant NOTIFY instantChanged)
  Q_PROPERTY(double today MEMBER today NOTIFY todayChanged)
  Q_PROPERTY(QString text MEMBER text NOTIFY instantChanged)
  Q_PROPERTY(int dayCount MEMBER dayCount NOTIFY todayChanged)
  Q_PROPERTY(int todayPlace MEMBER todayPlace NOTIFY todayChanged)
  Q_PROPERTY(int day MEMBER day NOTIFY dayChanged)
  Q_PROPERTY(int hour MEMBER hour NOTIFY hourChanged)
  Q_PROPERTY(int minute MEMBER minute NOTIFY minuteChanged)
  Q_PROPERTY(QString daySpoken MEMBER daySpoken NOTIFY dayChanged)
  Q_PROPERTY(QString hourSpoken MEMBER hourSpoken NOTIFY hourChanged)
  Q_PROPERTY(QString minuteSpoken MEMBER minuteSpoken NOTIFY minuteChanged)
  Q_PROPERTY(QString doneLabel MEMBER doneLabel NOTIFY todayChanged)
  Q_PROPERTY(QString typeLabel MEMBER typeLabel NOTIFY todayChanged)
  Q_PROPERTY(QString typed MEMBER typed NOTIFY instantChanged)
  Q_PROPERTY(QString typedProblem MEMBER typedProblem NOTIFY instantChanged)

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

 Q_SIGNALS:
  void instantChanged();
  void todayChanged();
  void dayChanged();
  void hourChanged();
  void minuteChanged();

 private:
  void become(const host::DateTimeEntry& next);

  std::function<PageClients()> clients;
  host::DateTimeEntry entry;
  QString text, daySpoken, hourSpoken, minuteSpoken, doneLabel, typeLabel, typed, typedProblem;
  double instant = 0, today = 0;
  int dayCount = 0, todayPlace = 0, day = 0, hour = 0, minute = 0;
};

}  // namespace mivo::app
