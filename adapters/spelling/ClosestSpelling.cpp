// SPDX-License-Identifier: MIT
#include "adapters/spelling/ClosestSpelling.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace mivo::adapters {
namespace {

using Row = std::vector<std::size_t>;

// The optimal string alignment distance, by rows of its table.
std::size_t distance(std::string_view a, std::string_view b) {
  Row beforeLast, last(b.size() + 1), row(b.size() + 1);
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({replaced, last[j] + 1, row[j - 1] + 1});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    beforeLast = std::exchange(last, row);
  }
  return last.back();
}

}  // namespace

std::optional<std::size_t> closestSpelling(std::string_view word, std::span<const std::string> candidates) {
  constexpr std::size_t longestWord = 64, mostSlips = 2;
  if (word.empty() || word.size() > longestWord) return std::nullopt;
  std::size_t tooFar = std::min(mostSlips, word.size() / 3) + 1;
  std::optional<std::size_t> closest;
  for (std::size_t place = 0; place < candidates.size(); ++place) {
    const std::size_t slips = distance(word, candidates[place]);
    if (slips >= tooFar) continue;
    tooFar = slips;
    closest = place;
  }
  return closest;
}

}  // namespace mivo::adapters
