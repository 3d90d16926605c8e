// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "mivo/charts/DatedSeries.h"
#include "mivo/model/BodyWeightSample.h"

namespace mivo {

/// The weights of a line chart, ready to be averaged over whatever part of them is on screen.
///
/// Made in O(n); an average costs O(log n) where the dates ascend, O(n) where they do not. Thread: any.
class VisibleWeights {
 public:
  explicit VisibleWeights(List<BodyWeightSample> samples);

  const List<BodyWeightSample>& samples() const { return series.entries(); }

  /// Kilograms: the sum of the weights within the interval, both ends included, over their number; 0 where there is
  /// none. Differs from adding them up one by one in the 14th digit at most, and up to 64 samples not at all.
  double averageInKg(DateInterval visible) const;

 private:
  // The sum of all weights before a place, and what rounding took from it: a difference of two plain sums would keep
  // the error of the whole history in the average of a week.
  struct Sum {
    double rounded = 0, rest = 0;
  };

  static std::vector<Sum> runningSums(const DatedSeries<BodyWeightSample>& series);

  DatedSeries<BodyWeightSample> series;
  std::vector<Sum> sums;  // one more than samples; none where they cannot be used
};

}  // namespace mivo
