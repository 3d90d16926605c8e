// SPDX-License-Identifier: MIT
#include "bench/support/Histories.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace bench {
namespace {

constexpr double thirtyYears = 30 * 365.25 * mivo::secondsPerDay;

double secondsApart(std::int64_t count) {
  return std::min(mivo::secondsPerDay, 0.8 * thirtyYears / static_cast<double>(std::max<std::int64_t>(count, 1)));
}

mivo::UUID numbered(std::int64_t index) { return {0x4000, 0x8000000000000000 | static_cast<std::uint64_t>(index)}; }

}  // namespace

std::vector<mivo::FinishedFastingDataEntry> fasts(std::int64_t count, Order order) {
  std::mt19937_64 random{20260301};
  const double apart = secondsApart(count);
  std::normal_distribution<double> length{0.7 * apart, 0.1 * apart};
  std::bernoulli_distribution pauses{std::min(0.05, 1000.0 / static_cast<double>(std::max<std::int64_t>(count, 1)))};
  const auto goal = static_cast<std::int64_t>(apart * 2 / 3);

  std::vector<mivo::FinishedFastingDataEntry> history;
  history.reserve(static_cast<std::size_t>(count));
  double end = mivo::secondsSince1970(now) - apart / 4;
  for (std::int64_t i = 0; i < count; ++i) {
    const double start = end - std::max(1.0, std::floor(length(random)));
    history.push_back({mivo::dateSince1970(start), mivo::dateSince1970(end), goal});
    end -= std::floor(apart) + (pauses(random) ? 2 * mivo::secondsPerDay : 0);
  }
  if (order == Order::sorted) std::ranges::reverse(history);
  if (order == Order::shuffled) std::ranges::shuffle(history, random);
  return history;
}

std::vector<mivo::FastingDataEntry> fastRecords(std::int64_t count, Order order) {
  std::vector<mivo::FastingDataEntry> records;
  records.reserve(static_cast<std::size_t>(count));
  for (const auto& fast : fasts(count, order))
    records.push_back(mivo::finishedFast(numbered(std::ssize(records)), fast.start, fast.end, fast.goalSeconds));
  return records;
}

std::vector<mivo::BodyWeightSample> weights(std::int64_t count) {
  std::mt19937_64 random{20260301};
  std::normal_distribution<double> scatter{0, 0.4};
  const double apart = secondsApart(count);
  const double first = mivo::secondsSince1970(now) - apart * static_cast<double>(count);

  std::vector<mivo::BodyWeightSample> samples;
  samples.reserve(static_cast<std::size_t>(count));
  double trend = 96;
  for (std::int64_t i = 0; i < count; ++i) {
    const bool plateau = i / 120 % 3 == 1;
    trend = std::max(70.0, trend - (plateau ? 0 : 0.02));
    const auto date = mivo::dateSince1970(std::floor(first + apart * static_cast<double>(i)));
    samples.push_back({numbered(i), date, std::round((trend + scatter(random)) * 10) / 10});
  }
  return samples;
}

}  // namespace bench
