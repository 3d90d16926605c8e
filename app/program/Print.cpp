// SPDX-License-Identifier: MIT
#include "app/program/Print.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <system_error>
#include <vector>

#include "adapters/system/AtomicFile.h"
#include "drawing/pages/PageBreaks.h"

namespace mivo::app {
namespace {

constexpr double marginInPoints = 28, belowCardsInPoints = 12;

void addCards(const QQuickItem& item, std::vector<drawing::Stretch>& cards) {
  for (const QQuickItem* child : item.childItems()) {
    if (!child->isVisible()) continue;
    if (!QByteArray{child->metaObject()->className()}.startsWith("CardSlot_")) {
      addCards(*child, cards);
      continue;
    }
    const double top = child->mapToScene({0, 0}).y();
    cards.push_back({top, top + child->height()});
  }
}

/// Down to the end of the last card: the window's own bars are not printed.
struct Column {
  QImage picture;
  double height, scale;  ///< in points; pixels of the picture to a point
  std::vector<drawing::Stretch> cards;
};

Column columnOf(QQuickWindow& window) {
  Column column{.picture = window.grabWindow(), .height = double(window.height()), .scale = 1, .cards = {}};
  column.scale = double(column.picture.width()) / window.width();
  addCards(*window.contentItem(), column.cards);
  if (column.cards.empty()) return column;
  column.height = std::ranges::max(column.cards, {}, &drawing::Stretch::bottom).bottom + belowCardsInPoints;
  column.picture = column.picture.copy(0, 0, column.picture.width(), static_cast<int>(column.height * column.scale));
  return column;
}

QByteArray pagesOf(const Column& column, const QString& title) {
  QBuffer content;
  content.open(QIODevice::WriteOnly);
  QPdfWriter writer{&content};
  writer.setPageSize(QPageSize{QPageSize::A4});
  writer.setPageMargins({});
  writer.setTitle(title);
  writer.setCreator(QStringLiteral("Mivo"));
  const double width = column.picture.width(), toPage = writer.width() / width * column.scale;
  const double pageHeight = writer.height() / toPage - 2 * marginInPoints;
  QPainter painter{&writer};
  bool isFirst = true;
  for (const auto& [top, bottom] : drawing::pageBreaks(column.cards, column.height, pageHeight)) {
    if (!isFirst) writer.newPage();
    isFirst = false;
    painter.fillRect(QRect{0, 0, writer.width(), writer.height()}, column.picture.pixelColor(0, 0));
    painter.drawImage(QRectF{0, marginInPoints * toPage, double(writer.width()), (bottom - top) * toPage},
                      column.picture, QRectF{0, top * column.scale, width, (bottom - top) * column.scale});
  }
  painter.end();
  return content.data();
}

QByteArray pictureOf(const QImage& picture) {
  QBuffer content;
  content.open(QIODevice::WriteOnly);
  picture.save(&content, "PNG");
  return content.data();
}

}  // namespace

std::optional<std::string> print(QQuickWindow& window, const std::string& file) {
  const Column column = columnOf(window);
  const bool isDocument = QString::fromStdString(file).endsWith(QLatin1String{".pdf"}, Qt::CaseInsensitive);
  const QByteArray content = isDocument ? pagesOf(column, window.title()) : pictureOf(column.picture);
  try {
    adapters::writePrivately(file, content.toStdString(), adapters::Existing::replaced);
  } catch (const std::system_error& error) {
    return error.what();
  }
  return std::nullopt;
}

}  // namespace mivo::app
