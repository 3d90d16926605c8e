// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <cstdint>
#include <unordered_map>

#include "tally/server/SeededHash.h"

namespace mivo::tally {

/// How often clients may do something, a token each time. Every client has a bucket of its own: a burst of a minute's
/// worth, then one token at a time as they grow back.
class RateLimiter {
 public:
  using Instant = std::chrono::steady_clock::time_point;

  /// 0 a minute lets everything through.
  explicit RateLimiter(unsigned tokensPerMinute) : perMinute(tokensPerMinute) {}

  /// Takes a token and gives 0, or gives the whole seconds after which there will be one.
  unsigned secondsToWait(std::uint64_t client, Instant now);

 private:
  struct Bucket {
    double tokens = 0;
    Instant filled;
  };

  Bucket& bucketOf(std::uint64_t client, Instant now);

  // A bucket that was left alone for a minute is full, as one that was never used: so the younger generation becomes
  // the elder each minute, and the elder is forgotten.
  using Buckets = std::unordered_map<std::uint64_t, Bucket, SeededHash>;
  Buckets young;
  Buckets old;
  Instant generationEnd{};
  unsigned perMinute;
};

}  // namespace mivo::tally
