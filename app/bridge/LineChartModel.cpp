// SPDX-License-Identifier: MIT
#include "LineChartModel.h"

#include <algorithm>

#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

bool LineChartModel::isEmpty() const {
  return std::ranges::all_of(lines(), [](const auto& line) { return line.points.empty(); });
}

int LineChartModel::rowCount() const {
  std::size_t count = 0;
  for (const auto& line : lines()) count += line.points.size();
  return static_cast<int>(count);
}

// One line after the other, each from its latest point on.
LineChartModel::Row LineChartModel::rowOf(int row) const {
  auto left = static_cast<std::size_t>(row);
  for (std::size_t line = 0; line < lines().size(); ++line) {
    const auto& points = lines()[line].points;
    if (left < points.size()) return {line, points[points.size() - 1 - left]};
    left -= points.size();
  }
  return {};
}

QString LineChartModel::date(int row) const {
  return qString(dependency(&Dependencies::dateFormatter)->string(rowOf(row).point.date, "yMMMdjm").value_or(""));
}

QString LineChartModel::value(int row) const {
  const Row shown = rowOf(row);
  return valueText(shown.line, shown.point.value);
}

QString LineChartModel::spokenSelection() const {
  const auto selected = annotation();
  if (!selected) return {};
  std::string text = selected->date;
  for (const std::string& value : selected->values)
    if (!value.empty()) text += ", " + value;
  return qString(text);
}

}  // namespace mivo::app
