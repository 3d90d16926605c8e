// SPDX-License-Identifier: MIT
#include "DayBars.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace mivo::app {
namespace {

constexpr qreal topRadius = 8, bottomRadius = 3;
constexpr qreal labelBelowBaseline = 8, dotBelowBaseline = 30, dotRadius = 2, labelDistance = 4;
constexpr qreal popupBody = 30, popupRadius = 10, popupPointer = 6, popupPointerHalf = 7;
constexpr qreal popupPadding = 12, popupLine = 14, popupLineHeight = 14;
constexpr int smallPopupText = 11;

// Round above, less so below, and less everywhere on a bar that is too short for it.
QPainterPath barPath(const QRectF& bar) {
  const qreal top = std::min({topRadius, bar.width() / 2, bar.height() - std::min(bottomRadius, bar.height() / 2)});
  const qreal bottom = std::min(bottomRadius, bar.height() / 2);
  QPainterPath path;
  path.moveTo(bar.left(), bar.bottom() - bottom);
  path.lineTo(bar.left(), bar.top() + top);
  path.quadTo(bar.topLeft(), {bar.left() + top, bar.top()});
  path.lineTo(bar.right() - top, bar.top());
  path.quadTo(bar.topRight(), {bar.right(), bar.top() + top});
  path.lineTo(bar.right(), bar.bottom() - bottom);
  path.quadTo(bar.bottomRight(), {bar.right() - bottom, bar.bottom()});
  path.lineTo(bar.left() + bottom, bar.bottom());
  path.quadTo(bar.bottomLeft(), {bar.left(), bar.bottom() - bottom});
  path.closeSubpath();
  return path;
}

QPainterPath popupPath(const QRectF& body, qreal pointer, bool pointsDown) {
  QPainterPath path;
  path.addRoundedRect(body, popupRadius, popupRadius);
  const qreal at = std::clamp(pointer, body.left() + popupPointerHalf, body.right() - popupPointerHalf);
  const qreal base = pointsDown ? body.bottom() : body.top();
  const qreal tip = pointsDown ? base + popupPointer : base - popupPointer;
  QPainterPath arrow;
  arrow.moveTo(at - popupPointerHalf, base);
  arrow.lineTo(pointer, tip);
  arrow.lineTo(at + popupPointerHalf, base);
  arrow.closeSubpath();
  return path.united(arrow);
}

QRectF rectangle(const Rectangle& shape) {
  return {shape.origin.x, shape.origin.y, shape.size.width, shape.size.height};
}

}  // namespace

DayBars::DayBars(QQuickItem* parent) : ChartItem{parent} {}

void DayBars::setModel(DayBarsModel* model) {
  if (model == shown) return;
  if (shown) shown->disconnect(this);
  shown = model;
  if (shown) {
    connect(shown, &DayBarsModel::changed, this, &DayBars::relayout);
    connect(shown, &DayBarsModel::barsChanged, this, [this] {
      relayout();
      Q_EMIT scrollWanted(layout.maxScroll());
      Q_EMIT unitChanged();
    });
  }
  Q_EMIT modelChanged();
  relayout();
}

void DayBars::setScroll(qreal scroll) {
  if (scroll == offset) return;
  offset = scroll;
  Q_EMIT scrollChanged();
  reportVisibleBars();
  update();
}

qreal DayBars::contentWidth() const { return layout.plotWidth + layout.maxScroll(); }

void DayBars::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  ChartItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.size() == oldGeometry.size()) return;
  relayout();
  if (shown) shown->send(DayBarsModel::Action::didUpdateSize{{layout.plotWidth, layout.height}});
}

// Wide enough for the widest label that charts of this unit have, so that both charts share their columns.
qreal DayBars::gutterWidth() const {
  constexpr std::array<double, 3> mostHours{24, 120, 500};
  const auto unit = static_cast<std::size_t>(*shown->state().chartTimeUnit);
  const qreal label = numberWidth(shown->texts().hours(mostHours[unit]), axisFont);
  return std::max(DayBarsLayout::usualGutter, std::ceil(label + labelDistance));
}

// What stands at the trailing edge stays there, whether bars come in or the window changes its size.
void DayBars::relayout() {
  if (!shown) return;
  const auto& state = shown->state();
  const DayBarsLayout next =
      DayBarsLayout::make({innerWidth(), height()}, state.chartTimeUnit, state.data->size(), gutterWidth());
  const bool isOther = next.barCount != layout.barCount || next.pitch != layout.pitch || next.height != layout.height;
  const qreal barsBeyond = layout.pitch > 0 ? std::round((layout.maxScroll() - offset) / layout.pitch) : 0;
  layout = next;
  if (isOther) {
    Q_EMIT layoutChanged();
    Q_EMIT scrollWanted(std::max(0.0, layout.maxScroll() - barsBeyond * layout.pitch));
    reportVisibleBars();
  }
  update();
}

// The state derives the popup's place from what is reported here, so it is told of every move.
void DayBars::reportVisibleBars() {
  if (!shown || layout.pitch <= 0) return;
  const auto& data = *shown->state().data;
  const auto [first, last] = layout.visibleBars(offset);
  if (first == last) return;
  ScrollChartFeature::VisibleDays days;
  const qreal beforeTheEdge = layout.frameWidth - 2;
  for (std::size_t bar = first; bar < last; ++bar)
    days[data[bar].dateInterval.start] = layout.middle(bar, offset) + beforeTheEdge;
  shown->setVisible({data[first].dateInterval.start, data[last - 1].dateInterval.end});
  shown->send(DayBarsModel::Action::didUpdateVisibleDays{std::move(days)});
  const double midX = offset + layout.plotWidth / 2;
  if (shown->state().scrollViewMidX != midX) shown->send(DayBarsModel::Action::didUpdateMidX{midX});
}

std::optional<std::size_t> DayBars::selectedBar() const {
  const auto& state = shown->state();
  return *state.selectedUUID ? state.data->indexOf(**state.selectedUUID) : std::nullopt;
}

void DayBars::select(std::size_t bar) {
  const auto& state = shown->state();
  const qreal middle = layout.middle(bar, offset);
  if (middle < 0 || middle > layout.plotWidth) {
    const qreal wanted =
        middle < 0 ? offset + middle - layout.pitch / 2 : offset + middle + layout.pitch / 2 - layout.plotWidth;
    Q_EMIT scrollWanted(layout.snapped(wanted));
  }
  if (selectedBar() != bar) shown->send(DayBarsModel::Action::didTapBar{(*state.data)[bar].id});
}

void DayBars::tap(qreal x) {
  if (!shown) return;
  if (const auto bar = layout.barAt(fromLeading(x - roomAtTheSides), offset))
    shown->send(DayBarsModel::Action::didTapBar{(*shown->state().data)[*bar].id});
}

void DayBars::moveSelection(int bars) {
  if (!shown || layout.barCount == 0) return;
  const auto last = static_cast<std::ptrdiff_t>(layout.barCount) - 1;
  const auto selected = selectedBar();
  const auto next = selected ? static_cast<std::ptrdiff_t>(*selected) + bars : last;
  select(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, last)));
}

void DayBars::selectEnd(bool latest) {
  if (shown && layout.barCount > 0) select(latest ? layout.barCount - 1 : 0);
}

void DayBars::toggleSelection() {
  if (shown && *shown->state().selectedUUID)
    clearSelection();
  else
    selectEnd(true);
}

void DayBars::clearSelection() {
  if (!shown) return;
  if (const auto& selected = *shown->state().selectedUUID) shown->send(DayBarsModel::Action::didTapBar{*selected});
}

void DayBars::paint(QPainter* painter) {
  if (!shown || layout.plotWidth <= 0) return;
  painter->setRenderHint(QPainter::Antialiasing);
  painter->translate(roomAtTheSides, 0);
  paintLines(painter);
  painter->save();
  painter->setClipRect(placed({0, 0, layout.plotWidth, height()}));
  paintBars(painter);
  paintLabels(painter);
  painter->restore();
  paintPopup(painter);
}

void DayBars::paintLines(QPainter* painter) const {
  const double maxTime = shown->state().maxTime;
  painter->setFont(axisFont);
  painter->setPen(inkTertiary);
  const QFontMetricsF metrics{axisFont};
  for (const double hours : hourLines(maxTime)) {
    const qreal y = layout.baseline() - hours * secondsPerHour / maxTime * layout.barArea();
    drawHorizontalLine(painter, 0, layout.plotWidth, y, gridline);
    drawNumber(painter, shown->texts().hours(hours), innerWidth(), y + metrics.capHeight() / 2, Anchor::trailing);
  }
  drawHorizontalLine(painter, 0, layout.plotWidth, layout.baseline(), gridlineStrong);
}

void DayBars::paintBars(QPainter* painter) const {
  const auto& data = *shown->state().data;
  const auto selected = selectedBar();
  QLinearGradient gradient{0, layout.baseline() - layout.barArea(), 0, layout.baseline()};
  gradient.setColorAt(0, barTop);
  gradient.setColorAt(1, barFill);
  painter->setPen(Qt::NoPen);
  const auto [first, last] = layout.visibleBars(offset);
  for (std::size_t index = first; index < last; ++index) {
    const double value = data[index].value;
    const QRectF bar = placed(rectangle(layout.bar(index, value * growth, offset)));
    const bool isDim = !(value > 0) || (selected && *selected != index);
    painter->setBrush(isDim ? QBrush{barDim} : QBrush{gradient});
    painter->drawPath(barPath(bar));
  }
}

// How many columns a label takes: where they are wider than a column, only every second or third is written.
std::size_t DayBars::labelStride(DayBarsLayout::Range visible) const {
  const QFontMetricsF metrics{axisStrongFont};
  qreal widest = 0;
  for (std::size_t index = visible.first; index < visible.last; ++index)
    widest = std::max(widest, metrics.horizontalAdvance(labelOf(index)));
  return static_cast<std::size_t>(std::max(1.0, std::ceil((widest + labelDistance) / layout.pitch)));
}

QString DayBars::labelOf(std::size_t bar) const {
  return QString::fromStdString((*shown->state().data)[bar].xAxisLabel);
}

void DayBars::paintLabels(QPainter* painter) const {
  const auto selected = selectedBar();
  const QFontMetricsF metrics{axisFont};
  const qreal baseline = layout.baseline() + labelBelowBaseline + metrics.ascent();
  const auto visible = layout.visibleBars(offset);
  const std::size_t stride = labelStride(visible);
  for (std::size_t index = visible.first; index < visible.last; ++index) {
    if ((layout.barCount - 1 - index) % stride != 0) continue;
    const bool isPresent = index + 1 == layout.barCount;
    const bool isStrong = isPresent || selected == index;
    painter->setFont(isStrong ? axisStrongFont : axisFont);
    painter->setPen(isStrong ? ink : inkTertiary);
    drawText(painter, labelOf(index), layout.middle(index, offset), baseline, Anchor::middle);
    if (!isPresent) continue;
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    painter->drawEllipse(QPointF{fromLeading(layout.middle(index, offset)), layout.baseline() + dotBelowBaseline},
                         dotRadius, dotRadius);
  }
}

// The text of a popup in lines that fit into its width: smaller before it is broken.
DayBars::PopupText DayBars::popupText(const QString& label, qreal width) const {
  PopupText text{{label}, valueFont};
  const auto fits = [&](const QString& line) { return numberWidth(line, text.font) <= width - popupPadding; };
  if (fits(label)) return text;
  text.font.setPixelSize(smallPopupText);
  const auto middle = label.lastIndexOf(QLatin1Char{' '});
  if (!fits(label) && middle > 0) text.lines = {label.left(middle), label.mid(middle + 1)};
  return text;
}

void DayBars::paintPopup(QPainter* painter) const {
  const auto popup = shown->popup();
  const auto selected = selectedBar();
  if (!popup || !selected) return;
  const PopupText text = popupText(QString::fromStdString(popup->popupLabel), popup->popupWidth);
  const qreal bodyHeight = popupBody + static_cast<qreal>(text.lines.size() - 1) * popupLineHeight;
  const bool isInside = popup->popupYOffset + popupLine > -(*shown->state().data)[*selected].value * layout.barArea();
  const PopupShape shape = popupShape(layout,
                                      {.xOffset = popup->popupXOffset,
                                       .yOffset = popup->popupYOffset,
                                       .width = popup->popupWidth,
                                       .barMiddle = layout.middle(*selected, offset),
                                       .isInsideBar = isInside,
                                       .bodyHeight = bodyHeight},
                                      roomAtTheSides, roomAtTheSides);
  const QRectF body = placed(rectangle(shape.body));
  painter->setPen(Qt::NoPen);
  painter->setBrush(inverse);
  painter->drawPath(popupPath(body, fromLeading(shape.pointerX), shape.pointsDown));
  painter->setFont(text.font);
  painter->setPen(textOnInverse);
  qreal middle = body.center().y() - static_cast<qreal>(text.lines.size() - 1) * popupLineHeight / 2;
  for (const QString& line : text.lines) {
    drawNumber(painter, line, shape.body.midX(), middle + QFontMetricsF{text.font}.capHeight() / 2, Anchor::middle);
    middle += popupLineHeight;
  }
}

}  // namespace mivo::app
