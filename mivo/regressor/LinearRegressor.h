// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "mivo/regressor/BaseRegressor.h"

namespace mivo {

/// The least-squares line through a list of points.
///
///     auto line = LinearRegressor<double>::make({{0, 0}, {1, 2}, {2, 4}});
///     line->slope();        // 2
///     line->xEstimate(3);   // 1.5
///
/// Degenerate data is not guarded: a single point, or points that all have the same x or y, make some or all of the
/// statistics not a number or infinite, and the caller decides what to show.
///
/// Deviations from the mean are summed, never raw squares, so dates of 1.7e9 seconds against weights that differ in the
/// fourth digit keep at least nine digits of slope and intercept.
template <class Scalar>
class LinearRegressor : public BaseRegressor<Scalar> {
  using Base = BaseRegressor<Scalar>;

 public:
  using typename Base::Point;

  /// A line through at least one point; nothing for an empty list.
  static std::optional<LinearRegressor> make(std::vector<Point> points) {
    if (points.empty()) return std::nullopt;
    return LinearRegressor(std::move(points));
  }

  Scalar yRegression(Scalar x) override { return slope() * x + intercept(); }
  std::vector<Scalar> xEstimates(Scalar y) override { return {(y - intercept()) / slope()}; }

  /// The x at which the line has the value y.
  Scalar xEstimate(Scalar y) {
    const std::vector<Scalar> estimates = xEstimates(y);
    if (estimates.empty()) stopRegression("xEstimate() needs at least one estimate");
    return estimates.front();
  }

  /// Sums, not means, of the squared deviations from the mean.
  virtual Point summedSquareError() {
    return summedSquareErrorSlot.read([this] {
      return this->sumOverPoints([mean = this->mean()](const Point& point) {
        const Scalar dx = point.x - mean.x, dy = point.y - mean.y;
        return Point{dx * dx, dy * dy};
      });
    });
  }
  virtual void setSummedSquareError(Point value) { summedSquareErrorSlot.write(value); }

  /// With the divisor n - 1.
  virtual Point sampleStandardDeviation() {
    return sampleStandardDeviationSlot.read([this] {
      const Point squares = summedSquareError();
      const Scalar divisor = this->count() - 1;
      return Point{std::sqrt(squares.x / divisor), std::sqrt(squares.y / divisor)};
    });
  }
  virtual void setSampleStandardDeviation(Point value) { sampleStandardDeviationSlot.write(value); }

  /// -1 to 1.
  virtual Scalar pearsonsCorrelation() {
    return pearsonsCorrelationSlot.read([this] {
      const Point mean = this->mean(), deviation = sampleStandardDeviation();
      Scalar products = 0;
      for (const Point& point : this->points()) products = products + (point.x - mean.x) * (point.y - mean.y);
      return products / ((this->count() - 1) * deviation.x * deviation.y);
    });
  }
  virtual void setPearsonsCorrelation(Scalar value) { pearsonsCorrelationSlot.write(value); }

  virtual Scalar slope() {
    return slopeSlot.read([this] {
      const Point deviation = sampleStandardDeviation();
      return pearsonsCorrelation() * deviation.y / deviation.x;
    });
  }
  virtual void setSlope(Scalar value) { slopeSlot.write(value); }

  virtual Scalar intercept() {
    return interceptSlot.read([this] { return this->mean().y - slope() * this->mean().x; });
  }
  virtual void setIntercept(Scalar value) { interceptSlot.write(value); }

  virtual Scalar ssTotal() {
    return ssTotalSlot.read([this] { return summedSquareError().y; });
  }
  virtual void setSsTotal(Scalar value) { ssTotalSlot.write(value); }

  /// The sum of squared residuals, whatever the name suggests; `rSquared` counts on it.
  virtual Scalar ssRegression() {
    return ssRegressionSlot.read([this] {
      Scalar sum = 0;
      for (const Point& point : this->points()) {
        const Scalar residual = point.y - yRegression(point.x);
        sum = sum + residual * residual;
      }
      return sum;
    });
  }
  virtual void setSsRegression(Scalar value) { ssRegressionSlot.write(value); }

  /// The share of the variance that the line explains.
  virtual Scalar rSquared() {
    return rSquaredSlot.read([this] { return 1 - ssRegression() / ssTotal(); });
  }
  virtual void setRSquared(Scalar value) { rSquaredSlot.write(value); }

 protected:
  using Base::Base;

 private:
  Slot<Point> summedSquareErrorSlot, sampleStandardDeviationSlot;
  Slot<Scalar> pearsonsCorrelationSlot, slopeSlot, interceptSlot, ssTotalSlot, ssRegressionSlot, rSquaredSlot;
};

}  // namespace mivo
