// SPDX-License-Identifier: MIT
#include "Icon.h"

#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace mivo::app {
namespace {

constexpr qreal usualSize = 24;

// The drawing as a file has it, with "currentColor" where the colour goes.
const QByteArray& drawing(const QString& name) {
  static QHash<QString, QByteArray> drawings;
  const auto known = drawings.constFind(name);
  if (known != drawings.constEnd()) return *known;
  QFile file{QStringLiteral(":/Mivo/icons/%1.svg").arg(name)};
  if (!file.open(QIODevice::ReadOnly)) qWarning("There is no icon named %s", qUtf8Printable(name));
  return *drawings.insert(name, file.readAll());
}

}  // namespace

Icon::Icon(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setImplicitSize(usualSize, usualSize);
  setAntialiasing(true);
  for (const auto changed : {&Icon::nameChanged, &Icon::colorChanged, &Icon::mirroredChanged})
    connect(this, changed, this, [this] { update(); });
}

void Icon::paint(QPainter* painter) {
  if (name.isEmpty()) return;
  QByteArray colored = drawing(name);
  colored.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
  QSvgRenderer renderer{colored};
  if (mirrored) {
    painter->translate(width(), 0);
    painter->scale(-1, 1);
  }
  renderer.render(painter, boundingRect());
}

}  // namespace mivo::app
