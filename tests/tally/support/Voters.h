// SPDX-License-Identifier: MIT
#pragma once
#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace mivo::tally::test {

/// What voters know of one counter: the sum of the votes that were answered with 200, and how many got no answer that
/// says whether they count.
struct Tally {
  std::int64_t kept = 0;
  std::int64_t unknown = 0;
};

/// Clients that vote at once, each on its own connection and thread, until they are stopped; one that loses its
/// connection makes a new one. Each vote is for one counter, up.
class Voters {
 public:
  /// `portNow` is asked at each new connection.
  Voters(std::size_t size, std::string counter, std::function<std::uint16_t()> portNow);
  ~Voters();
  Voters(const Voters&) = delete;
  Voters& operator=(const Voters&) = delete;

  /// Returns when so many more votes were kept; throws where that takes over a minute.
  void waitForMore(std::int64_t votes) const;
  Tally stop();

 private:
  void vote();
  void voteOnOneConnection();

  std::string target;
  std::function<std::uint16_t()> port;
  std::atomic<std::int64_t> kept = 0;
  std::atomic<std::int64_t> unknown = 0;
  std::atomic<bool> isStopped = false;
  std::vector<std::thread> clients;
};

}  // namespace mivo::tally::test
