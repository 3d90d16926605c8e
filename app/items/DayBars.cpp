// SPDX-License-Identifier: MIT
#include "DayBars.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <utility>

#include "app/items/TextMetrics.h"

namespace mivo::app {
namespace {

using Layout = drawing::DayBarsLayout;

QPainterPath barPath(const QRectF& bar) {
  const auto [top, bottom] = drawing::barCorners({bar.width(), bar.height()});
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

QPainterPath popupPath(const QRectF& body, qreal foot, qreal tip, bool pointsDown) {
  using Shape = drawing::PopupShape;
  QPainterPath path;
  path.addRoundedRect(body, Shape::radius, Shape::radius);
  const qreal base = pointsDown ? body.bottom() : body.top();
  QPainterPath arrow;
  arrow.moveTo(foot - Shape::pointerHalf, base);
  arrow.lineTo(tip, pointsDown ? base + Shape::pointerHeight : base - Shape::pointerHeight);
  arrow.lineTo(foot + Shape::pointerHalf, base);
  arrow.closeSubpath();
  return path.united(arrow);
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
      lastSeen.reset();
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
  if (isLayingOut || !shown) return;
  const auto last = layout.lastSeen(offset);
  lastSeen = last ? std::optional{(*shown->state().data)[*last].dateInterval.start} : std::nullopt;
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

qreal DayBars::gutterWidth() const {
  const std::string widest = shown->hoursText(drawing::widestHours(shown->state().chartTimeUnit));
  return drawing::gutterWidth(numberWidthIn(axisFont)(widest));
}

void DayBars::relayout() {
  if (!shown) return;
  const auto& state = shown->state();
  const Layout next = Layout::make({innerWidth(), height()}, state.chartTimeUnit, state.data->size(), gutterWidth());
  const bool isOther = next.barCount != layout.barCount || next.pitch != layout.pitch || next.height != layout.height;
  layout = next;
  if (isOther) keepPlace();
  reportVisibleBars();
  update();
}

// What scrolls is told of the new widths first, and moves by itself while it takes them over.
void DayBars::keepPlace() {
  const auto& data = *shown->state().data;
  const auto isEarlier = [](const ChartDataEntry& bar, Date date) { return bar.dateInterval.start < date; };
  isLayingOut = true;
  Q_EMIT layoutChanged();
  std::optional<std::size_t> bar;
  if (lastSeen)
    bar = std::min<std::size_t>(
        data.size() - 1,
        static_cast<std::size_t>(std::lower_bound(data.begin(), data.end(), *lastSeen, isEarlier) - data.begin()));
  Q_EMIT scrollWanted(layout.scrollToEndAt(bar));
  isLayingOut = false;
}

// The state derives the popup's place from what is reported here, so it is told of every move, and of other periods in
// the place of those that it knows: as many bars may begin on other days.
void DayBars::reportVisibleBars() {
  if (!shown || layout.pitch <= 0) return;
  const auto& data = *shown->state().data;
  const auto [first, last] = layout.visibleBars(offset);
  auto days = layout.visibleDays(data, offset);
  if (first == last || days == *shown->state().visibleDays) return;
  if (const auto seen = layout.seenBars(offset); seen.first < seen.last)
    shown->setVisible({data[seen.first].dateInterval.start, data[seen.last - 1].dateInterval.end});
  shown->send(DayBarsModel::Action::didUpdateVisibleDays{std::move(days)});
  polish();
}

// The other chart follows the middle, so it is told once both have the width that a window gives them.
void DayBars::updatePolish() {
  if (!shown || layout.pitch <= 0) return;
  const double midX = offset + layout.plotWidth / 2;
  if (shown->state().scrollViewMidX != midX) shown->send(DayBarsModel::Action::didUpdateMidX{midX});
}

std::optional<std::size_t> DayBars::selectedBar() const {
  const auto& state = shown->state();
  return *state.selectedUUID ? state.data->indexOf(**state.selectedUUID) : std::nullopt;
}

void DayBars::select(std::size_t bar) {
  if (const auto wanted = layout.scrollToSee(bar, offset)) Q_EMIT scrollWanted(*wanted);
  if (selectedBar() != bar) shown->send(DayBarsModel::Action::didTapBar{(*shown->state().data)[bar].id});
}

void DayBars::tap(qreal x) {
  if (!shown) return;
  if (const auto bar = layout.barAt(fromLeading(x - roomAtTheSides), offset))
    shown->send(DayBarsModel::Action::didTapBar{(*shown->state().data)[*bar].id});
}

void DayBars::moveSelection(int bars) {
  if (!shown) return;
  if (const auto next = drawing::steppedBar(selectedBar(), bars, layout.barCount)) select(*next);
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
  painter->setClipRect(placed(QRectF{0, 0, layout.plotWidth, height()}));
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
  for (const double hours : drawing::hourLines(maxTime)) {
    const qreal y = layout.hourLine(hours, maxTime);
    drawHorizontalLine(painter, 0, layout.plotWidth, y, gridline);
    drawNumber(painter, shown->hoursText(hours), innerWidth(), y + metrics.capHeight() / 2, Anchor::trailing);
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
    const QRectF bar = placed(layout.bar(index, value * growth, offset));
    const bool isDim = !(value > 0) || (selected && *selected != index);
    painter->setBrush(isDim ? QBrush{barDim} : QBrush{gradient});
    painter->drawPath(barPath(bar));
  }
}

void DayBars::paintLabels(QPainter* painter) const {
  const auto& data = *shown->state().data;
  const auto selected = selectedBar();
  const qreal baseline = layout.baseline() + Layout::labelBelowBaseline + QFontMetricsF{axisFont}.ascent();
  const drawing::TextWidth strong = widthIn(axisStrongFont);
  double widest = 0;
  const auto [first, last] = layout.visibleBars(offset);
  for (std::size_t index = first; index < last; ++index) widest = std::max(widest, strong(data[index].xAxisLabel));
  for (const std::size_t index : layout.labelled(offset, widest)) {
    const bool isPresent = index + 1 == layout.barCount;
    const bool isStrong = isPresent || selected == index;
    painter->setFont(isStrong ? axisStrongFont : axisFont);
    painter->setPen(isStrong ? ink : inkTertiary);
    drawText(painter, data[index].xAxisLabel, layout.middle(index, offset), baseline, Anchor::middle);
    if (!isPresent) continue;
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    painter->drawEllipse(
        QPointF{fromLeading(layout.middle(index, offset)), layout.baseline() + Layout::dotBelowBaseline},
        Layout::dotRadius, Layout::dotRadius);
  }
}

void DayBars::paintPopup(QPainter* painter) const {
  const auto popup = shown->popup();
  const auto selected = selectedBar();
  if (!popup || !selected) return;
  QFont small = valueFont;
  small.setPixelSize(drawing::PopupText::smallSize);
  const auto text =
      drawing::popupText(popup->popupLabel, popup->popupWidth, numberWidthIn(valueFont), numberWidthIn(small));
  const auto shape = drawing::popupShape(layout, *popup, layout.middle(*selected, offset),
                                         (*shown->state().data)[*selected].value, text.lines.size(), roomAtTheSides);
  painter->setPen(Qt::NoPen);
  painter->setBrush(inverse);
  painter->drawPath(
      popupPath(placed(shape.body), fromLeading(shape.pointerFoot()), fromLeading(shape.pointerX), shape.pointsDown));
  const QFont& font = text.isSmall ? small : valueFont;
  painter->setFont(font);
  painter->setPen(textOnInverse);
  const qreal belowMiddle = QFontMetricsF{font}.capHeight() / 2;
  for (std::size_t line = 0; line < text.lines.size(); ++line)
    drawNumber(painter, text.lines[line], shape.body.midX(), shape.lineMiddle(line, text.lines.size()) + belowMiddle,
               Anchor::middle);
}

}  // namespace mivo::app
