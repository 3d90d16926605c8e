// SPDX-License-Identifier: MIT
#include "LineChart.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

#include <utility>

#include "app/items/TextMetrics.h"

namespace mivo::app {
namespace {

constexpr qreal lineWidth = 2.5, markStroke = 2.5, areaOpacity = 0.2;
constexpr qreal annotationMarkRadius = 3, annotationMarkStroke = 2;

}  // namespace

LineChart::LineChart(QQuickItem* parent) : ChartItem{parent} {
  connect(this, &ChartItem::appearanceChanged, this, [this] {
    if (shown && gutter != wantedGutter()) dataChanged();
  });
}

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

// Whoever sees the latest keeps seeing it, whoever looks further back keeps looking at the same dates. What scrolls is
// told of the new widths first, and moves by itself while it takes them over.
void LineChart::dataChanged() {
  if (shown) gutter = wantedGutter();
  if (shown && std::exchange(range, shown->timeRange()) != shown->timeRange()) endKept.reset();
  isLayingOut = true;
  Q_EMIT layoutChanged();
  if (shown && plotWidth() > 0) {
    Q_EMIT scrollWanted(endKept ? layout().scrollToEndAt(*endKept) : maxScroll());
    lookAtVisible(false);
  }
  isLayingOut = false;
  update();
}

void LineChart::lookAtVisible(bool animated) {
  shown->didScroll(visible().start);
  updateAxis(animated);
  const QString next = qText(shown->note(visible()));
  if (std::exchange(sentence, next) != next) Q_EMIT noteChanged();
}

void LineChart::setScroll(qreal scroll) {
  if (scroll == offset) return;
  offset = scroll;
  Q_EMIT scrollChanged();
  if (isLayingOut || !shown || plotWidth() <= 0) return;
  endKept = offset < maxScroll() - 0.5 ? std::optional{visible().end} : std::nullopt;
  lookAtVisible(true);
  update();
}

void LineChart::setAxisShift(qreal value) {
  if (value == shift) return;
  shift = value;
  Q_EMIT axisShiftChanged();
  update();
}

const QFont& LineChart::gutterFont() const { return shown->hasTwoLines() ? axisStrongFont : axisFont; }

qreal LineChart::wantedGutter() const {
  return drawing::lineGutterWidth(shown->gutterTexts(), shown->hasTwoLines(), numberWidthIn(gutterFont()));
}

qreal LineChart::plotWidth() const { return layout().plotWidth(); }

qreal LineChart::plotMiddle() const {
  const drawing::LinePlot place = plot();
  return (place.top + place.bottom) / 2;
}

qreal LineChart::contentWidth() const { return layout().contentWidth(); }

void LineChart::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  layoutHeight = newGeometry.height();  // first: the other one tells of it
  ChartItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.width() != oldGeometry.width()) dataChanged();
  if (newGeometry.height() != oldGeometry.height()) update();
}

drawing::LineChartLayout LineChart::layout() const {
  const Size size{innerWidth(), layoutHeight};
  if (!shown) return {.size = size, .domain = {}};
  return {.size = size,
          .domain = shown->domain(),
          .span = shown->span(),
          .scrolls = shown->scrolls(),
          .isPair = shown->hasTwoLines(),
          .gutter = gutter};
}

void LineChart::updateAxis(bool animated) {
  const drawing::ValueAxis next = drawing::valueAxis(shown->lines(), visible());
  if (next == axis) return;
  axisBefore = animated ? axis : next;
  axis = next;
  if (animated) Q_EMIT axisMoved();
}

drawing::LinePlot LineChart::plot() const { return layout().plot(offset, axisBefore, axis, shift); }

void LineChart::touch(qreal x) {
  if (!shown || shown->isEmpty()) return;
  shown->didTouch(drawing::touchedDate(plot(), fromLeading(x - roomAtTheSides)));
}

void LineChart::clearSelection() {
  if (shown) shown->didTouch(std::nullopt);
}

void LineChart::selectDate(std::optional<Date> date) {
  if (!date) return;
  if (const auto wanted = layout().scrollToSee(plot(), *date, offset)) Q_EMIT scrollWanted(*wanted);
  shown->didTouch(date);
}

void LineChart::moveSelection(int points) {
  if (shown) selectDate(drawing::steppedDate(shown->lines(), shown->selection(), points));
}

void LineChart::selectEnd(bool latest) {
  if (shown) selectDate(drawing::endDate(shown->lines(), latest));
}

void LineChart::paint(QPainter* painter) {
  if (!shown || plotWidth() <= 0) return;
  painter->setRenderHint(QPainter::Antialiasing);
  painter->translate(roomAtTheSides, 0);
  const drawing::LinePlot place = plot();
  paintLines(painter, place);
  paintLabels(painter, place);
  painter->save();
  painter->setClipRect(placed(layout().area(place)));
  for (std::size_t line = 0; line < shown->lines().size(); ++line) paintLine(painter, place, line);
  painter->restore();
  paintGutter(painter, place);
  paintSelection(painter, place);
}

void LineChart::paintLines(QPainter* painter, const drawing::LinePlot& place) const {
  for (const double y : layout().gridlines(place, axis)) drawHorizontalLine(painter, 0, place.width, y, gridline);
  drawHorizontalLine(painter, 0, place.width, layout().baseline(), gridlineStrong);
}

void LineChart::paintLabels(QPainter* painter, const drawing::LinePlot& place) const {
  const auto labels = shown->labels(place.visible);
  const qreal baseline = layout().baseline();
  const qreal textLine = baseline + Layout::labelBelow + QFontMetricsF{axisFont}.ascent();
  for (const auto& [index, x, isCentred] :
       drawing::labelsThatFit(labels, place, widthIn(axisFont), widthIn(axisStrongFont))) {
    const auto& label = labels[index];
    painter->setFont(label.isPresent ? axisStrongFont : axisFont);
    painter->setPen(label.isPresent ? ink : inkTertiary);
    drawText(painter, label.text, x, textLine, isCentred ? Anchor::middle : Anchor::leading);
    if (!label.isPresent) continue;
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    painter->drawEllipse(QPointF{fromLeading(x), baseline + Layout::dotBelow}, Layout::dotRadius, Layout::dotRadius);
  }
}

QPointF LineChart::at(const drawing::LinePlot& place, const drawing::LineSeries& line,
                      const drawing::LinePoint& point) const {
  return {fromLeading(place.x(point.date)), place.y(point.value / line.scale)};
}

void LineChart::paintLine(QPainter* painter, const drawing::LinePlot& place, std::size_t index) const {
  const auto& line = shown->lines()[index];
  const auto points = drawing::pointsToDraw(line.points, place.visible);
  if (points.empty()) return;
  const QColor color = fills.value(static_cast<qsizetype>(index));
  QPainterPath path{at(place, line, points[0])};
  for (const auto& point : points.subspan(1)) path.lineTo(at(place, line, point));
  if (!shown->hasTwoLines()) paintArea(painter, path, place.bottom, color);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen{color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
  painter->drawPath(path);
  if (!drawing::hasMarks(place, points.size())) return;
  const qreal radius = shown->hasTwoLines() ? drawing::pairMarkRadius : drawing::markRadius;
  for (const auto& point : points)
    paintMark(painter, at(place, line, point), index, radius, false, markStroke, color, card);
}

void LineChart::paintArea(QPainter* painter, const QPainterPath& path, qreal bottom, QColor tint) const {
  QPainterPath area = path;
  area.lineTo(path.currentPosition().x(), bottom);
  area.lineTo(path.elementAt(0).x, bottom);
  QLinearGradient gradient{0, path.boundingRect().top(), 0, bottom};
  tint.setAlphaF(static_cast<float>(areaOpacity));
  gradient.setColorAt(0, tint);
  tint.setAlphaF(0);
  gradient.setColorAt(1, tint);
  painter->fillPath(area, gradient);
}

void LineChart::paintMark(QPainter* painter, QPointF at, std::size_t line, qreal radius, bool isFilled, qreal stroke,
                          const QColor& color, const QColor& surface) const {
  painter->setPen(QPen{color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin});
  painter->setBrush(isFilled ? color : surface);
  if (line == 0) return painter->drawEllipse(at, radius, radius);
  const qreal reach = drawing::diamondReach(radius);
  painter->drawPolygon(QPolygonF{
      {at.x(), at.y() - reach}, {at.x() + reach, at.y()}, {at.x(), at.y() + reach}, {at.x() - reach, at.y()}});
}

void LineChart::paintGutter(QPainter* painter, const drawing::LinePlot& place) const {
  const bool isPair = shown->hasTwoLines();
  painter->setFont(gutterFont());
  const qreal belowMiddle = QFontMetricsF{painter->font()}.capHeight() / 2;
  if (!isPair) {
    painter->setPen(inkTertiary);
    for (const double value : axis.lines)
      drawNumber(painter, shown->axisText(value, axis.fractionDigits), innerWidth(), place.y(value) + belowMiddle,
                 Anchor::trailing);
    return;
  }
  for (const auto& [line, value, y] : drawing::gutterValues(shown->lines(), place)) {
    painter->setPen(textColors.value(static_cast<qsizetype>(line)));
    drawNumber(painter, shown->gutterText(line, value), innerWidth(), y + belowMiddle, Anchor::trailing);
  }
}

void LineChart::paintSelection(QPainter* painter, const drawing::LinePlot& place) const {
  using Box = drawing::AnnotationBox;
  const auto& lines = shown->lines();
  const auto annotation = shown->annotation();
  const auto selection = shown->selection();
  const auto ruleX = drawing::selectionRule(selection, place);
  if (!annotation || !ruleX) return;
  const double top = shown->hasTwoLines() ? Box::height : place.top;
  painter->fillRect(QRectF{fromLeading(*ruleX) - 0.5, top, 1, layout().baseline() - top}, inkSecondary);
  for (std::size_t line = 0; line < selection.size(); ++line) {
    if (!selection[line]) continue;
    const QColor color = fills.value(static_cast<qsizetype>(line));
    paintMark(painter, at(place, lines[line], *selection[line]), line, drawing::selectedMarkRadius, true, 0, color,
              color);
  }
  const auto caption = widthIn(captionFont), value = numberWidthIn(valueFont);
  paintAnnotation(painter, *annotation,
                  shown->hasTwoLines()
                      ? drawing::annotationBox(*annotation, *ruleX, plotWidth(), innerWidth(), caption, value)
                      : drawing::annotationBeside(*annotation, {*ruleX, place.y(selection[0]->value / lines[0].scale)},
                                                  place, caption, value));
}

void LineChart::paintAnnotation(QPainter* painter, const drawing::Annotation& annotation,
                                const drawing::AnnotationBox& box) const {
  using Box = drawing::AnnotationBox;
  const QFontMetricsF caption{captionFont}, value{valueFont};
  painter->setPen(Qt::NoPen);
  painter->setBrush(inverse);
  painter->drawRoundedRect(placed(QRectF{box.x, box.y, box.width, Box::height}), Box::radius, Box::radius);
  painter->setFont(captionFont);
  painter->setPen(textOnInverseSecondary);
  drawText(painter, annotation.date, box.x + Box::padding, box.y + Box::captionMiddle + caption.capHeight() / 2,
           Anchor::leading);
  for (const auto& [line, mark, text] : box.values) {
    paintMark(painter, {fromLeading(mark), box.y + Box::valueMiddle}, line, annotationMarkRadius, false,
              annotationMarkStroke, inverseFills.value(static_cast<qsizetype>(line)), inverse);
    painter->setFont(valueFont);
    painter->setPen(textOnInverse);
    drawNumber(painter, annotation.values[line], text, box.y + Box::valueMiddle + value.capHeight() / 2,
               Anchor::leading);
  }
}

}  // namespace mivo::app
