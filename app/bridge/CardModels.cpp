// SPDX-License-Identifier: MIT
#include "CardModels.h"

#include <QtCore/QRegularExpression>

namespace mivo::app {

// A sentence that begins with the figure, as it does in most languages, shows it apart.
QString GoalWeightCardModel::trendFigure() const {
  static const QRegularExpression figure{QStringLiteral("^[^\\p{L}]*\\d[^\\p{L}]*\\p{L}+"),
                                         QRegularExpression::UseUnicodePropertiesOption};
  return figure.match(qString(content.trend)).captured();
}

QString GoalWeightCardModel::trendRest() const {
  const QString trend = qString(content.trend), outlook = qString(content.outlook);
  const QString between = trend.isEmpty() || outlook.isEmpty() ? QString{} : QStringLiteral(" ");
  return trend.mid(trendFigure().size()) + between + outlook;
}

}  // namespace mivo::app
