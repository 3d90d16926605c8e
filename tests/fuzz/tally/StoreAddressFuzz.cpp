// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "tally/store/StoreAddress.h"

namespace {

std::optional<mivo::tally::StoreAddress> parsed(std::string_view text) {
  try {
    return mivo::tally::parseStoreAddress(text);
  } catch (const std::invalid_argument& error) {
    if (!std::string_view{error.what()}.starts_with("--store: ")) std::abort();
    return std::nullopt;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto address = parsed({reinterpret_cast<const char*>(data), size});
  if (!address) return 0;
  // What a log shows leads to the same store, without the login.
  const auto shown = parsed(describe(*address));
  if (auto* redis = std::get_if<mivo::tally::RedisAddress>(&*address)) redis->user = redis->password = {};
  if (shown != address) std::abort();
  return 0;
}
