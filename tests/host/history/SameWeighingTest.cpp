// SPDX-License-Identifier: MIT
#include "host/history/SameWeighing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>

namespace mivo::host {
namespace {

TEST(SameWeighing, findsTheNewOnesAsLookingAtAllPairsDoes) {
  std::mt19937 random{7};
  std::uniform_int_distribution<int> seconds{0, 400}, grams{0, 30}, counts{0, 20};
  const auto some = [&] {
    std::vector<BodyWeightSample> all(static_cast<std::size_t>(counts(random)));
    for (auto& sample : all) sample = {{}, dateSince1970(seconds(random)), 80 + grams(random) * 0.001};
    std::ranges::stable_sort(all, {}, &BodyWeightSample::date);
    return all;
  };
  std::size_t found = 0;
  for (int round = 0; round < 300; ++round) {
    const auto samples = some(), known = some();
    std::vector<BodyWeightSample> expected;
    std::ranges::copy_if(samples, std::back_inserter(expected), [&](const BodyWeightSample& sample) {
      return std::ranges::none_of(known, [&](const auto& one) { return isSameWeighing(one, sample); });
    });
    EXPECT_EQ(newWeighings(samples, known), expected);
    found += expected.size();
  }
  EXPECT_GT(found, 100u);
}

}  // namespace
}  // namespace mivo::host
