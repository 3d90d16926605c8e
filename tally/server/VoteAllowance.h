// SPDX-License-Identifier: MIT
#pragma once
#include <array>
#include <chrono>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "tally/net/Asio.h"

namespace mivo::tally {

/// How often one address may vote for one feature a day, up and down each. The first 48 bits of an IPv6 address, which
/// one customer may have all the rest of, have ten times the allowance of the first 64.
///
/// Nothing about a person is kept: addresses and counters are remembered as a hash whose secret salt changes every day,
/// in memory alone. Where there is no room for more of them, all begin anew.
class VoteAllowance {
 public:
  /// 0 a day lets everything through.
  explicit VoteAllowance(unsigned votesPerDay, std::size_t hashesHeld = 500'000)
      : perDay{votesPerDay}, mostHashes{hashesHeld} {}

  /// Takes a vote of 1 or -1 out of the allowance; false where none is left.
  bool take(const asio::ip::address& client, std::string_view counter, int delta, std::chrono::sys_days today);
  /// How many hashes it holds.
  std::size_t size() const { return votes.size(); }

 private:
  struct Votes {
    std::uint32_t up = 0;
    std::uint32_t down = 0;
  };

  void beginAnew(std::chrono::sys_days today);
  std::uint32_t& votesOf(std::uint64_t origin, unsigned bits, std::string_view counter, int delta);

  unsigned perDay;
  std::size_t mostHashes;
  std::chrono::sys_days day{};
  std::array<unsigned char, 32> salt{};
  std::unordered_map<std::uint64_t, Votes> votes;
};

}  // namespace mivo::tally
