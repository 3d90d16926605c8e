// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "mivo/regressor/Slot.h"

namespace mivo {

/// Prints a sentence on standard error and ends the program: a regressor was used against its contract.
[[noreturn]] void stopRegression(std::string_view sentence);

/// A list of points and the statistics that every kind of fit needs; a kind of fit derives from it and overrides
/// `yRegression` and `xEstimates`.
///
/// Each statistic is computed on first read and kept; its setter puts another value in its place, and whatever is read
/// for the first time afterwards uses that one. Reading therefore changes the object: one thread only.
///
/// Scalar  a floating-point type; sums are taken in the order of the points.
template <class Scalar>
class BaseRegressor {
 public:
  struct Point {
    Scalar x = 0, y = 0;
    bool operator==(const Point&) const = default;
  };

  /// The start value of every sum.
  static constexpr Point pointZero{};

  /// A regressor over at least one point; nothing for an empty list.
  static std::optional<BaseRegressor> make(std::vector<Point> points) {
    if (points.empty()) return std::nullopt;
    return BaseRegressor(std::move(points));
  }

  virtual ~BaseRegressor() = default;

  const std::vector<Point>& points() const { return input; }

  /// The fitted y at x.
  virtual Scalar yRegression(Scalar) { stopRegression("Override yRegression() in your subclass"); }
  /// Every x whose fitted value is y.
  virtual std::vector<Scalar> xEstimates(Scalar) { stopRegression("Override xEstimates() in your subclass"); }

  /// The fitted y of every point, in order.
  virtual const std::vector<Scalar>& resultValuesY() {
    return resultValuesYSlot.read([this] {
      std::vector<Scalar> values;
      values.reserve(input.size());
      for (const Point& point : input) values.push_back(yRegression(point.x));
      return values;
    });
  }
  virtual void setResultValuesY(std::vector<Scalar> values) { resultValuesYSlot.write(std::move(values)); }

  /// Every x with its fitted y, in order.
  virtual const std::vector<Point>& resultPoints() {
    return resultPointsSlot.read([this] {
      std::vector<Point> fitted;
      fitted.reserve(input.size());
      for (const Point& point : input) fitted.push_back({point.x, yRegression(point.x)});
      return fitted;
    });
  }
  virtual void setResultPoints(std::vector<Point> fitted) { resultPointsSlot.write(std::move(fitted)); }

  /// The number of points.
  virtual Scalar count() {
    return countSlot.read([this] { return static_cast<Scalar>(input.size()); });
  }
  virtual void setCount(Scalar count) { countSlot.write(count); }

  /// Sum of x, sum of y.
  virtual Point summed() {
    return summedSlot.read([this] { return sumOverPoints([](const Point& point) { return point; }); });
  }
  virtual void setSummed(Point summed) { summedSlot.write(summed); }

  /// Mean of x, mean of y.
  virtual Point mean() {
    return meanSlot.read([this] { return Point{summed().x / count(), summed().y / count()}; });
  }
  virtual void setMean(Point mean) { meanSlot.write(mean); }

 protected:
  explicit BaseRegressor(std::vector<Point> points) : input{std::move(points)} {}

  /// Sum over all points of a `Point` made of each.
  template <class Term>
  Point sumOverPoints(Term&& term) const {
    Point sum = pointZero;
    for (const Point& point : input) {
      const Point summand = term(point);
      sum = {sum.x + summand.x, sum.y + summand.y};
    }
    return sum;
  }

 private:
  std::vector<Point> input;
  Slot<std::vector<Scalar>> resultValuesYSlot;
  Slot<std::vector<Point>> resultPointsSlot;
  Slot<Scalar> countSlot;
  Slot<Point> summedSlot, meanSlot;
};

}  // namespace mivo
