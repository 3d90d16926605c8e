// SPDX-License-Identifier: MIT
#include "LineChart.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace mivo::app {
namespace {

constexpr qreal gutter = 32, plotBottom = 32;
constexpr qreal weightTop = 8, pairTop = 64, pairBottom = 18;
constexpr qreal lineWidth = 2.5, markStroke = 2.5, markRadius = 4, pairMarkRadius = 3.8, selectedRadius = 5.5;
constexpr qreal diamondExtra = 1.2, areaOpacity = 0.2;
constexpr qreal labelBelow = 8, dotBelow = 30, dotRadius = 2, labelDistance = 4;
constexpr qreal annotationHeight = 46, annotationWidth = 160, annotationPadding = 12, annotationRadius = 10;
constexpr qreal captionMiddle = 14, valueMiddle = 32, markRoom = 16, betweenValues = 10;
constexpr qreal gutterDistance = 14;

}  // namespace

LineChart::LineChart(QQuickItem* parent) : ChartItem{parent} {}

void LineChart::setModel(LineChartModel* model) {
  if (model == shown) return;
  if (shown) shown->disconnect(this);
  shown = model;
  if (shown) {
    connect(shown, &LineChartModel::changed, this, &LineChart::dataChanged);
    connect(shown, &LineChartModel::selectionChanged, this, [this] { update(); });
  }
  Q_EMIT modelChanged();
  dataChanged();
}

void LineChart::dataChanged() {
  Q_EMIT layoutChanged();
  if (!shown || plotWidth() <= 0) return;
  Q_EMIT scrollWanted(maxScroll());
  shown->didScroll(visible().start);
  updateAxis(false);
  update();
}

void LineChart::setScroll(qreal scroll) {
  if (scroll == offset) return;
  offset = scroll;
  Q_EMIT scrollChanged();
  if (shown && plotWidth() > 0) {
    shown->didScroll(visible().start);
    updateAxis(true);
  }
  update();
}

void LineChart::setAxisShift(qreal value) {
  if (value == shift) return;
  shift = value;
  Q_EMIT axisShiftChanged();
  update();
}

qreal LineChart::plotWidth() const { return std::max(0.0, innerWidth() - gutter); }

qreal LineChart::contentWidth() const {
  if (!shown || !shown->scrolls()) return plotWidth();
  return std::max(plotWidth(), shown->domain().duration() / shown->span() * plotWidth());
}

void LineChart::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  ChartItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.size() != oldGeometry.size()) dataChanged();
}

// The latest date stands at the trailing edge when everything is scrolled to the end.
DateInterval LineChart::visible() const {
  const double span = shown->scrolls() ? shown->span() : std::max(shown->span(), shown->domain().duration());
  const Date end = shown->domain().end - Duration{(maxScroll() - offset) / plotWidth() * span};
  return {end - Duration{span}, end};
}

void LineChart::updateAxis(bool animated) {
  const auto& lines = shown->lines();
  ValueAxis next;
  if (lines.size() == 1) {
    next = weightAxis(pointsInside(lines[0].points, visible()));
  } else {
    double low = INFINITY, high = -INFINITY;
    for (const auto& line : lines)
      for (const LinePoint& point : pointsInside(line.points, visible())) {
        low = std::min(low, point.value / line.scale);
        high = std::max(high, point.value / line.scale);
      }
    if (low <= high) next = {.low = low, .high = high};
  }
  if (next == axis) return;
  axisBefore = animated ? axis : next;
  axis = next;
  if (animated) Q_EMIT axisMoved();
}

LinePlot LineChart::plot() const {
  const bool isPair = shown->hasTwoLines();
  const qreal baseline = height() - plotBottom;
  return {.width = plotWidth(),
          .top = isPair ? pairTop : weightTop,
          .bottom = isPair ? baseline - pairBottom : baseline,
          .visible = visible(),
          .low = std::lerp(axisBefore.low, axis.low, shift),
          .high = std::lerp(axisBefore.high, axis.high, shift)};
}

// Every date that has a point, for the arrow keys.
std::vector<LinePoint> LineChart::selectable() const {
  std::vector<LinePoint> all;
  for (const auto& line : shown->lines()) all.insert(all.end(), line.points.begin(), line.points.end());
  std::ranges::sort(all, {}, &LinePoint::date);
  return all;
}

void LineChart::touch(qreal x) {
  if (!shown || shown->isEmpty()) return;
  shown->didTouch(plot().date(std::clamp(fromLeading(x - roomAtTheSides), 0.0, plotWidth())));
}

void LineChart::clearSelection() {
  if (shown) shown->didTouch(std::nullopt);
}

void LineChart::selectDate(Date date) {
  const LinePlot place = plot();
  const double x = place.x(date);
  if (x < 0 || x > place.width) Q_EMIT scrollWanted(std::clamp(offset + x - place.width / 2, 0.0, maxScroll()));
  shown->didTouch(date);
}

void LineChart::moveSelection(int points) {
  if (!shown || shown->isEmpty()) return;
  const auto all = selectable();
  std::optional<Date> selected;
  for (const auto& point : shown->selection())
    if (point) selected = selected ? std::max(*selected, point->date) : point->date;
  if (!selected) return selectDate(all.back().date);
  const auto beyond = points > 0 ? std::ranges::upper_bound(all, *selected, {}, &LinePoint::date)
                                 : std::ranges::lower_bound(all, *selected, {}, &LinePoint::date);
  if (points > 0 && beyond != all.end()) selectDate(beyond->date);
  if (points < 0 && beyond != all.begin()) selectDate(std::prev(beyond)->date);
}

void LineChart::selectEnd(bool latest) {
  if (!shown || shown->isEmpty()) return;
  const auto all = selectable();
  selectDate(latest ? all.back().date : all.front().date);
}

void LineChart::paint(QPainter* painter) {
  if (!shown || plotWidth() <= 0) return;
  painter->setRenderHint(QPainter::Antialiasing);
  painter->translate(roomAtTheSides, 0);
  const LinePlot place = plot();
  paintLines(painter, place);
  painter->save();
  painter->setClipRect(placed({0, 0, place.width, height()}));
  paintLabels(painter, place);
  for (std::size_t line = 0; line < shown->lines().size(); ++line) paintLine(painter, place, line);
  painter->restore();
  paintGutter(painter, place);
  paintSelection(painter, place);
}

void LineChart::paintLines(QPainter* painter, const LinePlot& place) const {
  const qreal baseline = height() - plotBottom;
  if (shown->hasTwoLines()) {
    for (int line = 0; line < 4; ++line)
      drawHorizontalLine(painter, 0, place.width, place.top + line * (place.bottom - place.top) / 3, gridline);
  } else {
    for (const double value : axis.lines) drawHorizontalLine(painter, 0, place.width, place.y(value), gridline);
  }
  drawHorizontalLine(painter, 0, place.width, baseline, gridlineStrong);
}

void LineChart::paintLabels(QPainter* painter, const LinePlot& place) const {
  const QFontMetricsF metrics{axisFont};
  const qreal baseline = height() - plotBottom;
  qreal free = -INFINITY;
  for (const auto& label : shown->labels(place.visible)) {
    const bool isBetween = label.until > label.date;
    const qreal x = isBetween ? (place.x(label.date) + place.x(label.until)) / 2 : place.x(label.date);
    painter->setFont(label.isPresent ? axisStrongFont : axisFont);
    painter->setPen(label.isPresent ? ink : inkTertiary);
    const qreal advance = QFontMetricsF{painter->font()}.horizontalAdvance(label.text);
    const qreal begin = isBetween ? x - advance / 2 : x;
    if (begin < free) continue;
    free = begin + advance + labelDistance;
    drawText(painter, label.text, x, baseline + labelBelow + metrics.ascent(),
             isBetween ? Anchor::middle : Anchor::leading);
    if (!label.isPresent) continue;
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    painter->drawEllipse(QPointF{fromLeading(x), baseline + dotBelow}, dotRadius, dotRadius);
  }
}

void LineChart::paintLine(QPainter* painter, const LinePlot& place, std::size_t index) const {
  const auto& line = shown->lines()[index];
  const auto points = pointsToDraw(line.points, place.visible);
  if (points.empty()) return;
  const auto at = [&](const LinePoint& point) {
    return QPointF{fromLeading(place.x(point.date)), place.y(point.value / line.scale)};
  };
  const QColor color = fills.value(static_cast<qsizetype>(index));
  QPainterPath path{at(points[0])};
  for (const LinePoint& point : points.subspan(1)) path.lineTo(at(point));
  if (!shown->hasTwoLines()) {
    QPainterPath area = path;
    area.lineTo(at(points.back()).x(), place.bottom);
    area.lineTo(at(points.front()).x(), place.bottom);
    QLinearGradient gradient{0, path.boundingRect().top(), 0, place.bottom};
    QColor tint = color;
    tint.setAlphaF(static_cast<float>(areaOpacity));
    gradient.setColorAt(0, tint);
    tint.setAlphaF(0);
    gradient.setColorAt(1, tint);
    painter->fillPath(area, gradient);
  }
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen{color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
  painter->drawPath(path);
  // Points so near to each other that marks would cover the line get none.
  const double distance = place.width / std::max<double>(1, static_cast<double>(points.size()));
  if (distance < 3 * markRadius) return;
  const qreal radius = shown->hasTwoLines() ? pairMarkRadius : markRadius;
  for (const LinePoint& point : points) paintMark(painter, at(point), index, radius, false, markStroke, color, card);
}

void LineChart::paintMark(QPainter* painter, QPointF at, std::size_t line, qreal radius, bool isFilled, qreal stroke,
                          const QColor& color, const QColor& surface) const {
  painter->setPen(QPen{color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin});
  painter->setBrush(isFilled ? color : surface);
  if (line == 0) return painter->drawEllipse(at, radius, radius);
  const qreal reach = radius + diamondExtra;
  painter->drawPolygon(QPolygonF{
      {at.x(), at.y() - reach}, {at.x() + reach, at.y()}, {at.x(), at.y() + reach}, {at.x() - reach, at.y()}});
}

void LineChart::paintGutter(QPainter* painter, const LinePlot& place) const {
  if (!shown->hasTwoLines()) {
    const QFontMetricsF metrics{axisFont};
    painter->setFont(axisFont);
    painter->setPen(inkTertiary);
    for (const double value : axis.lines)
      drawNumber(painter, shown->axisText(value, axis.fractionDigits), innerWidth(),
                 place.y(value) + metrics.capHeight() / 2, Anchor::trailing);
    return;
  }
  const QFontMetricsF metrics{axisStrongFont};
  painter->setFont(axisStrongFont);
  std::vector<std::pair<double, std::size_t>> places;
  for (std::size_t line = 0; line < shown->lines().size(); ++line) {
    const auto inside = pointsInside(shown->lines()[line].points, place.visible);
    if (!inside.empty()) places.emplace_back(place.y(inside.back().value / shown->lines()[line].scale), line);
  }
  if (places.size() == 2 && std::abs(places[0].first - places[1].first) < gutterDistance) {
    const double middle = (places[0].first + places[1].first) / 2;
    const bool isFirstAbove = places[0].first <= places[1].first;
    places[0].first = middle + (isFirstAbove ? -gutterDistance : gutterDistance) / 2;
    places[1].first = middle + (isFirstAbove ? gutterDistance : -gutterDistance) / 2;
  }
  for (const auto& [y, line] : places) {
    const auto& series = shown->lines()[line];
    painter->setPen(textColors.value(static_cast<qsizetype>(line)));
    drawNumber(painter, shown->axisText(pointsInside(series.points, place.visible).back().value, line == 0 ? 1 : 0),
               innerWidth(), y + metrics.capHeight() / 2, Anchor::trailing);
  }
}

void LineChart::paintSelection(QPainter* painter, const LinePlot& place) const {
  const auto annotation = shown->annotation();
  if (!annotation) return;
  const auto selection = shown->selection();
  std::optional<double> ruleX;
  for (const auto& point : selection)
    if (point) ruleX = ruleX.value_or(place.x(point->date));
  if (!ruleX || *ruleX < -1 || *ruleX > place.width + 1) return;
  painter->fillRect(QRectF{fromLeading(*ruleX) - 0.5, annotationHeight, 1, height() - plotBottom - annotationHeight},
                    inkSecondary);
  for (std::size_t line = 0; line < selection.size(); ++line) {
    if (!selection[line]) continue;
    const QPointF at{fromLeading(place.x(selection[line]->date)),
                     place.y(selection[line]->value / shown->lines()[line].scale)};
    const QColor color = fills.value(static_cast<qsizetype>(line));
    paintMark(painter, at, line, selectedRadius, true, 0, color, color);
  }
  paintAnnotation(painter, place, *annotation, *ruleX);
}

qreal LineChart::annotationContents(const LineChartModel::Annotation& annotation) const {
  qreal contents = 0;
  for (const QString& text : annotation.values)
    if (!text.isEmpty()) contents += (contents > 0 ? betweenValues : 0) + markRoom + numberWidth(text, valueFont);
  return std::max(contents, QFontMetricsF{captionFont}.horizontalAdvance(annotation.date));
}

// Centred on the rule and kept inside the plot.
void LineChart::paintAnnotation(QPainter* painter, const LinePlot& place, const LineChartModel::Annotation& annotation,
                                double ruleX) const {
  const QFontMetricsF caption{captionFont}, value{valueFont};
  const qreal wanted = std::max(annotationWidth, annotationContents(annotation) + 2 * annotationPadding);
  const qreal boxWidth = std::min(wanted, innerWidth());
  const qreal left = std::clamp(ruleX - boxWidth / 2, 0.0, std::max(0.0, place.width - boxWidth));
  painter->setPen(Qt::NoPen);
  painter->setBrush(inverse);
  painter->drawRoundedRect(placed({left, 0, boxWidth, annotationHeight}), annotationRadius, annotationRadius);
  painter->setFont(captionFont);
  painter->setPen(textOnInverseSecondary);
  drawText(painter, annotation.date, left + annotationPadding, captionMiddle + caption.capHeight() / 2,
           Anchor::leading);
  qreal x = left + annotationPadding;
  for (std::size_t line = 0; line < annotation.values.size(); ++line) {
    const QString& text = annotation.values[line];
    if (text.isEmpty()) continue;
    const QColor mark = inverseFills.value(static_cast<qsizetype>(line));
    paintMark(painter, {fromLeading(x + 5), valueMiddle}, line, 3, false, 2, mark, inverse);
    painter->setFont(valueFont);
    painter->setPen(textOnInverse);
    drawNumber(painter, text, x + markRoom, valueMiddle + value.capHeight() / 2, Anchor::leading);
    x += markRoom + numberWidth(text, valueFont) + betweenValues;
  }
}

}  // namespace mivo::app
