// SPDX-License-Identifier: MIT
#include <algorithm>

#include "drawing/charts/LineChartLayout.h"
#include "drawing/charts/LineSelection.h"
#include "web/drawing/Exchange.h"

namespace {

using mivo::Date;
using mivo::dateSince1970;
using mivo::web::Answer;
using mivo::web::answer;
using mivo::web::Font;
using mivo::web::numbers;
using mivo::web::texts;
using mivo::web::widthIn;
using namespace mivo::drawing;

LineChartLayout layoutOf(double width, double height, bool isPair, bool scrolls, double start, double end, double span,
                         double gutter) {
  return {.size = {width, height},
          .domain = {dateSince1970(start), dateSince1970(end)},
          .span = span,
          .scrolls = scrolls,
          .isPair = isPair,
          .gutter = gutter};
}

// A plot of which only heights, or only dates, are asked.
LinePlot plotOf(double width, double top, double bottom) {
  return {.width = width, .top = top, .bottom = bottom, .visible = {dateSince1970(0), dateSince1970(1)}};
}

}  // namespace

// Dates are seconds since 1970.

extern "C" {

/// Of the plot: width, width of all that scrolls, baseline, y of its highest and its lowest value, top of what is
/// painted; and the gutter that holds the widest of the texts.
[[clang::export_name("lineChart")]] const Answer* mivoLineChart(double width, double height, bool isPair, bool scrolls,
                                                                double start, double end, double span,
                                                                const char* gutterTexts, std::size_t size) {
  const auto inGutter = texts(gutterTexts, size);
  const double gutter = lineGutterWidth(inGutter, isPair, widthIn(isPair ? Font::axisStrong : Font::axis));
  const LineChartLayout layout = layoutOf(width, height, isPair, scrolls, start, end, span, gutter);
  const LinePlot plot = layout.plot(layout.maxScroll(), {}, {}, 1);
  return answer({layout.plotWidth(), layout.contentWidth(), layout.baseline(), plot.top, plot.bottom,
                 layout.area(plot).origin.y, gutter});
}

/// y of the lines behind a plot: of these values, or even ones for a pair and for none.
[[clang::export_name("gridlines")]] const Answer* mivoGridlines(double top, double bottom, bool isPair, double low,
                                                                double high, const double* values, std::size_t count) {
  const LineChartLayout layout = layoutOf(0, 0, isPair, false, 0, 1, 1, 0);
  LinePlot plot = plotOf(0, top, bottom);
  plot.low = low;
  plot.high = high;
  ValueAxis axis;
  axis.lines.assign(values, values + count);
  return answer(layout.gridlines(plot, axis));
}

/// Of each label that fits: its place, its x, and whether it is centred there. A label is given by its date, the end of
/// its period and whether it is the present one; they stand in a plot from one date to another.
[[clang::export_name("labelsThatFit")]] const Answer* mivoLabelsThatFit(double width, double from, double to,
                                                                        const double* labels, std::size_t count,
                                                                        const char* labelTexts, std::size_t size) {
  const auto written = texts(labelTexts, size);
  std::vector<TimeAxisLabel> all;
  for (std::size_t label = 0; label < written.size() && 3 * label + 2 < count; ++label)
    all.push_back({.date = dateSince1970(labels[3 * label]),
                   .text = written[label],
                   .isPresent = labels[3 * label + 2] != 0,
                   .until = dateSince1970(labels[3 * label + 1])});
  LinePlot plot = plotOf(width, 0, 0);
  plot.visible = {dateSince1970(from), dateSince1970(to)};
  std::vector<double> placed;
  for (const auto& [label, x, isCentred] : labelsThatFit(all, plot, widthIn(Font::axis), widthIn(Font::axisStrong)))
    placed.insert(placed.end(), {static_cast<double>(label), x, isCentred ? 1.0 : 0.0});
  return answer(std::move(placed));
}

/// Where the latest values of lines stand in the gutter: at their heights, but apart.
[[clang::export_name("gutterPlaces")]] const Answer* mivoGutterPlaces(const double* heights, std::size_t count) {
  // In a plot from 0 at the bottom to 1 at the top, whose y grows with the value.
  const LinePlot plot = plotOf(1, 1, 0);
  std::vector<LineSeries> lines;
  for (const double height : numbers(heights, count)) lines.push_back({.points = {{dateSince1970(1), height}}});
  std::vector<double> places;
  for (const GutterValue& value : gutterValues(lines, plot)) places.push_back(value.y);
  return answer(std::move(places));
}

[[clang::export_name("hasMarks")]] bool mivoHasMarks(double plotWidth, std::size_t pointCount) {
  return hasMarks(plotOf(plotWidth, 0, 0), pointCount);
}

/// The left edge, the top edge and the width of the box, and for each value in it its line and where its mark and its
/// text stand. The first text is the date.
[[clang::export_name("annotation")]] const Answer* mivoAnnotation(double plotWidth, double top, double bottom,
                                                                  double innerWidth, bool isPair, double x, double y,
                                                                  const char* words, std::size_t size) {
  auto values = texts(words, size);
  if (values.empty()) return answer({});
  Annotation annotation{.date = values.front(), .values = {values.begin() + 1, values.end()}};
  const auto caption = widthIn(Font::caption), value = widthIn(Font::value);
  const AnnotationBox box = isPair
                                ? annotationBox(annotation, x, plotWidth, innerWidth, caption, value)
                                : annotationBeside(annotation, {x, y}, plotOf(plotWidth, top, bottom), caption, value);
  std::vector<double> places{box.x, box.y, box.width};
  for (const auto& [line, mark, text] : box.values)
    places.insert(places.end(), {static_cast<double>(line), mark, text});
  return answer(std::move(places));
}
}
