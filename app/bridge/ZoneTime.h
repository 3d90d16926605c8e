// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "mivo/model/LegacyFastingZone.h"

namespace mivo::app {

/// How long a fast was in one of the zones.
struct ZoneTime {
  Q_GADGET
  QML_VALUE_TYPE(zoneTime)
  /// As the theme names its colours.
  Q_PROPERTY(QString zone MEMBER zone CONSTANT)
  Q_PROPERTY(QString name MEMBER name CONSTANT)
  Q_PROPERTY(QString duration MEMBER duration CONSTANT)
  /// The zone that the fast has come to.
  Q_PROPERTY(bool present MEMBER present CONSTANT)

 public:
  QString zone, name, duration;
  bool present = false;
  bool operator==(const ZoneTime&) const = default;
};

/// The zone that a fast is in after so many seconds.
LegacyFastingZone zoneAfter(double seconds);

/// "fatBurning", and its name in the user's language.
QString zoneKey(LegacyFastingZone zone);
QString zoneName(LegacyFastingZone zone);

/// The zones that a fast of so many seconds went through, in their order; the first one for a fast of none.
QList<ZoneTime> zoneTimes(double seconds);

/// "16h 42m" in the user's language; never negative.
QString durationText(double seconds);

}  // namespace mivo::app
