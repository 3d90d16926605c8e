// SPDX-License-Identifier: MIT
#include "drawing/charts/LineSelection.h"

#include <algorithm>

namespace mivo::drawing {
namespace {

constexpr double usualWidth = 160, markRoom = 16, markMiddle = 5, betweenValues = 10;
constexpr double besideMark = selectedMarkRadius + 6;

std::optional<Date> latestOf(SelectedPoints selected) {
  std::optional<Date> latest;
  for (const auto& point : selected)
    if (point) latest = latest ? std::max(*latest, point->date) : point->date;
  return latest;
}

double boxWidth(const Annotation& annotation, const TextWidth& caption, const TextWidth& value) {
  double contents = 0;
  for (const std::string& text : annotation.values)
    if (!text.empty()) contents += (contents > 0 ? betweenValues : 0) + markRoom + value(text);
  return std::max(contents, caption(annotation.date)) + 2 * AnnotationBox::padding;
}

void placeValues(AnnotationBox& box, const Annotation& annotation, const TextWidth& value) {
  double x = box.x + AnnotationBox::padding;
  for (std::size_t line = 0; line < annotation.values.size(); ++line) {
    if (annotation.values[line].empty()) continue;
    box.values.push_back({line, x + markMiddle, x + markRoom});
    x += markRoom + value(annotation.values[line]) + betweenValues;
  }
}

double centredInside(double middle, double size, double least, double most) {
  return std::clamp(middle - size / 2, least, std::max(least, most - size));
}

}  // namespace

std::optional<Date> steppedDate(Lines lines, SelectedPoints selected, int step) {
  const auto from = latestOf(selected);
  if (!from) return endDate(lines, true);
  std::optional<Date> next;
  for (const LineSeries& line : lines) {
    const auto& points = line.points;
    if (step > 0) {
      const auto later = std::ranges::upper_bound(points, *from, {}, &LinePoint::date);
      if (later != points.end()) next = next ? std::min(*next, later->date) : later->date;
    } else if (step < 0) {
      const auto earlier = std::ranges::lower_bound(points, *from, {}, &LinePoint::date);
      if (earlier != points.begin()) next = next ? std::max(*next, std::prev(earlier)->date) : std::prev(earlier)->date;
    }
  }
  return next;
}

std::optional<Date> endDate(Lines lines, bool latest) {
  std::optional<Date> end;
  for (const LineSeries& line : lines) {
    const auto& points = line.points;
    if (points.empty()) continue;
    const Date date = latest ? points.back().date : points.front().date;
    end = !end ? date : latest ? std::max(*end, date) : std::min(*end, date);
  }
  return end;
}

Date touchedDate(const LinePlot& plot, double x) { return plot.date(std::clamp(x, 0.0, plot.width)); }

std::optional<double> selectionRule(SelectedPoints selected, const LinePlot& plot) {
  const auto first = std::ranges::find_if(selected, [](const auto& point) { return point.has_value(); });
  if (first == selected.end()) return std::nullopt;
  const double x = plot.x((*first)->date);
  return x < -1 || x > plot.width + 1 ? std::nullopt : std::optional{x};
}

AnnotationBox annotationBox(const Annotation& annotation, double ruleX, double plotWidth, double innerWidth,
                            const TextWidth& caption, const TextWidth& value) {
  AnnotationBox box;
  box.width = std::min(std::max(usualWidth, boxWidth(annotation, caption, value)), innerWidth);
  box.x = centredInside(ruleX, box.width, 0, plotWidth);
  placeValues(box, annotation, value);
  return box;
}

AnnotationBox annotationBeside(const Annotation& annotation, Point point, const LinePlot& plot,
                               const TextWidth& caption, const TextWidth& value) {
  AnnotationBox box;
  box.width = std::min(boxWidth(annotation, caption, value), plot.width);
  const bool isLater = point.x < plot.width / 2;
  const double x = isLater ? point.x + besideMark : point.x - besideMark - box.width;
  if (x >= 0 && x + box.width <= plot.width) {
    box.x = x;
    box.y = centredInside(point.y, AnnotationBox::height, plot.top, plot.bottom);
  } else {
    const double above = point.y - besideMark - AnnotationBox::height;
    box.x = centredInside(point.x, box.width, 0, plot.width);
    box.y = above >= plot.top ? above : point.y + besideMark;
  }
  placeValues(box, annotation, value);
  return box;
}

}  // namespace mivo::drawing
