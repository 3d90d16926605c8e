// SPDX-License-Identifier: MIT
#include "drawing/charts/LineSelection.h"

#include <algorithm>

namespace mivo::drawing {
namespace {

constexpr double usualWidth = 160, markRoom = 16, markMiddle = 5, betweenValues = 10;

std::optional<Date> latestOf(SelectedPoints selected) {
  std::optional<Date> latest;
  for (const auto& point : selected)
    if (point) latest = latest ? std::max(*latest, point->date) : point->date;
  return latest;
}

double contentsWidth(const Annotation& annotation, const TextWidth& caption, const TextWidth& value) {
  double contents = 0;
  for (const std::string& text : annotation.values)
    if (!text.empty()) contents += (contents > 0 ? betweenValues : 0) + markRoom + value(text);
  return std::max(contents, caption(annotation.date));
}

}  // namespace

std::optional<Date> steppedDate(Lines lines, SelectedPoints selected, int step) {
  const auto from = latestOf(selected);
  if (!from) return endDate(lines, true);
  std::optional<Date> next;
  for (const auto& [points, scale] : lines) {
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
  for (const auto& [points, scale] : lines) {
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
  const double wanted = std::max(usualWidth, contentsWidth(annotation, caption, value) + 2 * AnnotationBox::padding);
  box.width = std::min(wanted, innerWidth);
  box.x = std::clamp(ruleX - box.width / 2, 0.0, std::max(0.0, plotWidth - box.width));
  double x = box.x + AnnotationBox::padding;
  for (std::size_t line = 0; line < annotation.values.size(); ++line) {
    if (annotation.values[line].empty()) continue;
    box.values.push_back({line, x + markMiddle, x + markRoom});
    x += markRoom + value(annotation.values[line]) + betweenValues;
  }
  return box;
}

}  // namespace mivo::drawing
