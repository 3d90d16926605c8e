// SPDX-License-Identifier: MIT
#pragma once
#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace mivo::tally {

/// What a connection was turned away or cut off for.
enum class Limit { connections, address, handshakes, handshakeRate, unsent };

/// What the server counts of itself since it started. Thread: the event loop's.
class Metrics {
 public:
  struct Present {
    std::size_t openConnections = 0;
    std::size_t unfinishedHandshakes = 0;
    std::size_t unsentBytes = 0;
    bool isStoreAvailable = false;
    bool isStoreDamaged = false;
    std::uintmax_t writeAheadLogBytes = 0;
    std::uint64_t logLinesLeftOut = 0;
    std::optional<int> certificateDays = {};
  };

  void answered(unsigned status, std::chrono::microseconds duration);
  void voted(int delta) { ++(delta > 0 ? votesUp : votesDown); }
  void batchSent(std::size_t count);
  void reached(Limit limit) { ++limitsReached[static_cast<std::size_t>(limit)]; }

  /// Prometheus' text format.
  std::string text(const Present& present) const;

 private:
  static constexpr std::size_t highestStatus = 599;
  static constexpr std::array bucketMicroseconds{100, 250, 500, 1000, 2500, 5000, 10'000, 50'000, 250'000, 1'000'000};

  std::array<std::uint64_t, highestStatus + 1> answersByStatus{};
  std::array<std::uint64_t, bucketMicroseconds.size()> answersByDuration{};
  static constexpr std::array limitNames{"connections", "address", "handshakes", "handshake_rate", "unsent"};
  std::array<std::uint64_t, limitNames.size()> limitsReached{};
  std::uint64_t answers = 0;
  std::int64_t microseconds = 0;
  std::uint64_t votesUp = 0;
  std::uint64_t votesDown = 0;
  std::uint64_t batches = 0;
  std::uint64_t operations = 0;
};

}  // namespace mivo::tally
