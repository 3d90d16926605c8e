// SPDX-License-Identifier: MIT
#include "adapters/standard/LocalUUIDGenerator.h"

#include <gtest/gtest.h>

#include <bit>
#include <unordered_set>
#include <vector>

#include "tests/support/Threads.h"

namespace mivo::adapters {
namespace {

TEST(LocalUUIDGenerator, makesVersion4WithTheRestRandom) {
  constexpr int count = 4096;
  std::vector<UUID> ids(count);
  LocalUUIDGenerator{}.fill(ids);
  std::vector<int> highOnes(64), lowOnes(64);
  for (const UUID& id : ids) {
    EXPECT_EQ(text(id)[14], '4');
    EXPECT_NE(std::string{"89AB"}.find(text(id)[19]), std::string::npos);
    for (std::size_t bit = 0; bit < 64; ++bit) {
      highOnes[bit] += static_cast<int>(id.high >> bit & 1);
      lowOnes[bit] += static_cast<int>(id.low >> bit & 1);
    }
  }
  // A fair coin thrown 4096 times is off by 8 standard deviations once in 10^15 runs.
  const auto isFair = [](int ones) { return std::abs(ones - count / 2) < 8 * 32; };
  for (std::size_t bit = 0; bit < 64; ++bit) {
    if (bit < 12 || bit > 15) {
      EXPECT_TRUE(isFair(highOnes[bit])) << bit << ": " << highOnes[bit];
    }
    if (bit < 62) {
      EXPECT_TRUE(isFair(lowOnes[bit])) << bit << ": " << lowOnes[bit];
    }
  }
}

TEST(LocalUUIDGenerator, repeatsNothingAcrossThreadsAndGenerators) {
  const LocalUUIDGenerator one, other;
  std::vector<std::vector<UUID>> made(4, std::vector<UUID>(5000));
  {
    tests::Threads threads;
    for (std::size_t thread = 0; thread < made.size(); ++thread)
      threads.start([&, thread] {
        const LocalUUIDGenerator& generator = thread == 3 ? other : one;
        const std::span ids{made[thread]};
        generator.fill(ids.first(2000));
        for (UUID& id : ids.subspan(2000)) id = generator.next();
      });
  }
  std::unordered_set<UUID> distinct;
  for (const auto& ids : made) distinct.insert(ids.begin(), ids.end());
  EXPECT_EQ(distinct.size(), 20000u);
}

}  // namespace
}  // namespace mivo::adapters
