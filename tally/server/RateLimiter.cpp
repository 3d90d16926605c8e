// SPDX-License-Identifier: MIT
#include "tally/server/RateLimiter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace mivo::tally {
namespace {

constexpr std::chrono::minutes generation{1};
// Bounds memory in a flood of addresses; those that are forgotten early start with a full bucket.
constexpr std::size_t mostClients = 200'000;

}  // namespace

unsigned RateLimiter::secondsToWait(std::uint64_t client, Instant now) {
  if (perMinute == 0) return 0;
  const double perSecond = perMinute / 60.0;
  auto& bucket = bucketOf(client, now);
  const double passed = std::chrono::duration<double>(now - bucket.filled).count();
  bucket.tokens = std::min<double>(perMinute, bucket.tokens + passed * perSecond);
  bucket.filled = now;
  if (bucket.tokens >= 1) {
    bucket.tokens -= 1;
    return 0;
  }
  return static_cast<unsigned>(std::max(1.0, std::ceil((1 - bucket.tokens) / perSecond)));
}

RateLimiter::Bucket& RateLimiter::bucketOf(std::uint64_t client, Instant now) {
  if (now >= generationEnd || young.size() >= mostClients) {
    old = std::exchange(young, {});
    generationEnd = now + generation;
  }
  const auto [found, isNew] = young.try_emplace(client, Bucket{static_cast<double>(perMinute), now});
  if (const auto elder = isNew ? old.find(client) : old.end(); elder != old.end()) found->second = elder->second;
  return found->second;
}

}  // namespace mivo::tally
