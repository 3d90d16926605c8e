// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

#include "mivo/model/Date.h"

namespace mivo::app {

/// A date and time that is being chosen from three lists: days up to today, hours, minutes. It counts in the user's
/// calendar and time zone; a time that a clock change skips becomes the first one after it.
///
/// Instants are seconds since 1970, as QML has no better number for them.
class DateTimeChoice : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(double instant READ instant WRITE setInstant NOTIFY changed)
  Q_PROPERTY(int day READ day WRITE setDay NOTIFY changed)
  Q_PROPERTY(int hour READ hour WRITE setHour NOTIFY changed)
  Q_PROPERTY(int minute READ minute WRITE setMinute NOTIFY changed)
  /// The day before the last one of the list, in seconds since 1970; taken anew with each instant that is set.
  Q_PROPERTY(double today READ presentDay NOTIFY changed)
  /// How many days there are to choose from, the last of them tomorrow.
  Q_PROPERTY(int dayCount READ dayCount CONSTANT)
  /// "Today, 13:24"
  Q_PROPERTY(QString text READ text NOTIFY changed)

 public:
  explicit DateTimeChoice(QObject* parent = nullptr);

  double instant() const;
  void setInstant(double seconds);
  int day() const { return chosenDay; }
  void setDay(int day);
  int hour() const { return chosenHour; }
  void setHour(int hour);
  int minute() const { return chosenMinute; }
  void setMinute(int minute);
  int dayCount() const;
  double presentDay() const { return today.time_since_epoch().count(); }
  QString text() const;

  /// `today` makes a binding notice that the list has moved on.
  Q_INVOKABLE QString dayText(int day, double today) const;
  /// Two digits, in the locale's.
  Q_INVOKABLE QString clockText(int number) const;

 Q_SIGNALS:
  void changed();

 private:
  std::optional<Date> startOf(int day) const;
  Date at(int day, double secondsOfDay) const;

  Date today;
  int chosenDay = 0, chosenHour = 0, chosenMinute = 0;
};

}  // namespace mivo::app
