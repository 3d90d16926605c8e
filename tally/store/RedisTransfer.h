// SPDX-License-Identifier: MIT
#pragma once
#include "tally/store/StoreAddress.h"
#include "tally/store/Transfer.h"

namespace mivo::tally {

/// Every counter of a Redis. Blocks; throws std::runtime_error with one sentence where Redis is away or refuses.
Counts readRedis(const RedisAddress& address);

/// Moves each counter by what `changes` says, with INCRBY, so that a vote that arrives meanwhile is kept. Blocks and
/// throws as readRedis does, also where a counter ended elsewhere than `Change::to` because somebody voted.
void changeRedis(const RedisAddress& address, const std::vector<Change>& changes);

}  // namespace mivo::tally
