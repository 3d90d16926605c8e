// SPDX-License-Identifier: MIT
#include "Faults.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGlyphRun>
#include <QtGui/QImage>
#include <QtGui/QTextLayout>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <cmath>

namespace mivo::app {
namespace {

constexpr qreal tolerance = 1;  // points; glyphs are placed between pixels
constexpr double leastContrast = 4.5, leastContrastOfLargeText = 3;
constexpr int largeText = 24, largeBoldText = 19;

/// A text, or a mark that no text may lie over.
struct ShownText {
  QQuickItem* item = nullptr;
  QQuickItem* card = nullptr;   // none for a text that stands on the page
  QQuickItem* frame = nullptr;  // the button that it names, or else the card
  QQuickItem* group = nullptr;  // the card or the sheet, within which no text may lie over another
  QRectF place = {};            // of its glyphs, in the window
  bool isOnTop = true;          // nothing modal lies over it
  bool isMark = false;
};

bool isCard(const QQuickItem* item) {
  const QByteArray name = item->metaObject()->className();
  return name.startsWith("Card_") || name.startsWith("TappableCard") || name.contains("Card_QMLTYPE");
}

bool isButton(const QQuickItem* item) { return item->inherits("QQuickAbstractButton"); }

bool isMark(const QQuickItem* item) {
  return item->inherits("mivo::app::Badge") || QByteArray{item->metaObject()->className()}.startsWith("ProgressTrack");
}

bool isOverlay(const QQuickItem* item) { return item->inherits("QQuickOverlay"); }

QRectF glyphPlace(const QQuickItem* text) {
  const qreal contentWidth = text->property("contentWidth").toReal(),
              contentHeight = text->property("contentHeight").toReal();
  const int alignment = text->property("effectiveHorizontalAlignment").toInt();
  const qreal x = alignment & Qt::AlignHCenter ? (text->width() - contentWidth) / 2
                  : alignment & Qt::AlignRight ? text->width() - contentWidth
                                               : 0;
  return text->mapRectToScene({x, 0, contentWidth, contentHeight});
}

// All texts below an item that can be seen at all.
void collect(QQuickItem* item, ShownText above, QList<ShownText>& texts) {
  if (!item->isVisible() || item->opacity() < 1) return;
  if (isCard(item)) above.card = item;
  if (isCard(item) || item->inherits("QQuickPopupItem")) above.group = item;
  if (isCard(item) || isButton(item)) above.frame = item;
  const bool isNumber = item->inherits("mivo::app::NumberText");
  if ((isNumber || item->inherits("QQuickText")) && !item->property("text").toString().isEmpty()) {
    const QRectF whole = item->mapRectToScene({0, 0, item->width(), item->height()});
    texts.append({item, above.card, above.frame, above.group, isNumber ? whole : glyphPlace(item), above.isOnTop});
  }
  if (isMark(item))
    texts.append({item, above.card, above.frame, above.group,
                  item->mapRectToScene({0, 0, item->width(), item->height()}), above.isOnTop, true});
  for (QQuickItem* child : item->childItems()) collect(child, above, texts);
}

// How many of the items that are loaded when they are wanted, cards first of all, are not there.
int missingItems(const QQuickItem* item) {
  if (!item->isVisible()) return 0;
  const bool isLoader = item->inherits("QQuickLoader") && item->property("active").toBool();
  int missing =
      isLoader && item->property("sourceComponent").value<QObject*>() && !item->property("item").value<QObject*>();
  for (const QQuickItem* child : item->childItems()) missing += missingItems(child);
  return missing;
}

bool hasMissingGlyph(const QQuickItem* text) {
  QTextLayout layout{text->property("text").toString(), text->property("font").value<QFont>()};
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  for (const QGlyphRun& run : layout.glyphRuns())
    if (run.glyphIndexes().contains(0)) return true;
  return false;
}

// Whether a word is wider than the lines; a line may end after a hyphen and within the path of a file.
bool hasBrokenWord(const QQuickItem* text) {
  if (!text->inherits("QQuickText")) return false;
  static const QRegularExpression markup{QStringLiteral("<[^>]*>")}, places{QStringLiteral("[\\s/]|(?<=-)")};
  const QFontMetricsF metrics{text->property("font").value<QFont>()};
  const QString plain = text->property("text").toString().remove(markup);
  return std::ranges::any_of(plain.split(places), [&](const QString& word) {
    return metrics.horizontalAdvance(word) > text->width() + tolerance;
  });
}

double luminance(const QColor& color) {
  const auto linear = [](double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const double high = std::max(luminance(one), luminance(other)), low = std::min(luminance(one), luminance(other));
  return (high + 0.05) / (low + 0.05);
}

// What most pixels behind a text show.
QColor surface(const QImage& picture, const QRect& place) {
  QHash<QRgb, int> counts;
  for (int y = place.top(); y <= place.bottom(); ++y)
    for (int x = place.left(); x <= place.right(); ++x) ++counts[picture.pixel(x, y)];
  QRgb most = 0;
  for (auto entry = counts.cbegin(); entry != counts.cend(); ++entry)
    if (entry.value() > counts.value(most)) most = entry.key();
  return QColor{most};
}

// Whether a view that scrolls hides a part of it.
bool isPartlyHidden(const ShownText& text) {
  for (const QQuickItem* above = text.item->parentItem(); above; above = above->parentItem())
    if ((above->clip() || above->inherits("QQuickFlickable")) &&
        !above->mapRectToScene({0, 0, above->width(), above->height()}).contains(text.place))
      return true;
  return false;
}

bool isFaint(const ShownText& text, const QImage& picture) {
  const qreal ratio = picture.devicePixelRatio();
  const QRect place = QRectF{text.place.topLeft() * ratio, text.place.size() * ratio}.toAlignedRect();
  if (!text.isOnTop || isPartlyHidden(text) || !text.item->isEnabled() || place.isEmpty() ||
      !picture.rect().contains(place))
    return false;
  const QFont font = text.item->property("font").value<QFont>();
  const bool isLarge =
      font.pixelSize() >= largeText || (font.pixelSize() >= largeBoldText && font.weight() >= QFont::Bold);
  const double found = contrast(text.item->property("color").value<QColor>(), surface(picture, place));
  return found < (isLarge ? leastContrastOfLargeText : leastContrast);
}

QString faultOf(const ShownText& text, const QQuickWindow& window, const QImage& picture) {
  const QQuickItem* item = text.item;
  if (item->property("truncated").toBool() || item->property("contentWidth").toReal() > item->width() + tolerance ||
      item->property("contentHeight").toReal() > item->height() + tolerance)
    return QStringLiteral("is cut off");
  if (hasBrokenWord(item)) return QStringLiteral("has a word that does not fit into a line");
  const QRectF outer =
      text.frame ? text.frame->mapRectToScene({0, 0, text.frame->width(), text.frame->height()}) : QRectF{};
  const QRectF room = outer.adjusted(-tolerance, -tolerance, tolerance, tolerance);
  if (text.frame && !room.contains(text.place)) return QStringLiteral("is outside its card or button");
  if (text.place.left() < -tolerance || text.place.right() > window.width() + tolerance)
    return QStringLiteral("is outside the window");
  if (hasMissingGlyph(item)) return QStringLiteral("has a glyph that no font has");
  if (isFaint(text, picture)) return QStringLiteral("is too faint");
  return {};
}

QString nameOf(const ShownText& text) {
  return text.isMark ? QString::fromLatin1(text.item->metaObject()->className()).section(QLatin1Char{'_'}, 0, 0)
                     : text.item->property("text").toString();
}

QStringList overlaps(const QList<ShownText>& texts) {
  QStringList faults;
  for (qsizetype one = 0; one < texts.size(); ++one)
    for (qsizetype other = one + 1; other < texts.size(); ++other) {
      if (!texts[one].group || texts[one].group != texts[other].group) continue;
      const QRectF both = texts[one].place & texts[other].place;
      if (both.width() > tolerance && both.height() > 2 * tolerance)
        faults.append(QStringLiteral("\"%1\" lies over \"%2\"").arg(nameOf(texts[one]), nameOf(texts[other])));
    }
  return faults;
}

}  // namespace

QStringList overlapsOf(QQuickWindow& window) {
  QList<ShownText> texts;
  collect(window.contentItem(), {}, texts);
  return overlaps(texts);
}

QStringList faultsOf(QQuickWindow& window) {
  QImage picture = window.grabWindow();
  picture.setDevicePixelRatio(window.effectiveDevicePixelRatio());  // the software renderer leaves it at 1
  QList<ShownText> texts;
  QList<QQuickItem*> overlays;
  for (QQuickItem* child : window.contentItem()->childItems())
    if (isOverlay(child) && child->isVisible() && !child->childItems().isEmpty()) overlays.append(child);
  for (QQuickItem* child : window.contentItem()->childItems())
    collect(child, {.isOnTop = overlays.isEmpty() || overlays.contains(child)}, texts);
  QStringList faults = overlaps(texts);
  if (const int missing = missingItems(window.contentItem()); missing > 0)
    faults.append(QStringLiteral("%1 cards or pages are missing").arg(missing));
  for (const ShownText& text : texts)
    if (const QString fault = text.isMark ? QString{} : faultOf(text, window, picture); !fault.isEmpty())
      faults.append(QStringLiteral("\"%1\" %2").arg(nameOf(text), fault));
  return faults;
}

}  // namespace mivo::app
