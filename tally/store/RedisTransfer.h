// SPDX-License-Identifier: MIT
#pragma once
#include <optional>

#include "tally/store/StoreAddress.h"
#include "tally/store/Transfer.h"

namespace mivo::tally {

/// Every counter of a Redis. Blocks; throws std::runtime_error with one sentence where Redis is away or refuses.
Counts readRedis(const RedisAddress& address);

/// Moves each counter by what `changes` says, with INCRBY, so that a vote that arrives meanwhile is kept. Blocks and
/// throws as readRedis does, also where a counter ended elsewhere than `Change::to` because somebody voted.
void changeRedis(const RedisAddress& address, const std::vector<Change>& changes);

/// Sets one counter, whatever it is; what it was, or nothing for one that nobody voted for. Blocks and throws as
/// readRedis does.
std::optional<std::int64_t> replaceInRedis(const RedisAddress& address, const std::string& counter, std::int64_t count);

}  // namespace mivo::tally
