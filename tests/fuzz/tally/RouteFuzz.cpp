// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tally/request/CounterName.h"
#include "tally/request/Route.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo::tally;
  const auto route = routeOf({reinterpret_cast<const char*>(data), size});
  if (const auto* read = std::get_if<ReadCount>(&route); read != nullptr && faultOfCounterName(read->counter))
    std::abort();
  const auto* vote = std::get_if<AddVote>(&route);
  if (vote == nullptr) return 0;
  if (faultOfCounterName(vote->counter) || featureIdOf(vote->counter).empty()) std::abort();
  if (vote->delta != 1 && vote->delta != -1) std::abort();
  return 0;
}
