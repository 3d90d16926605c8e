// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tally/request/ClientAddress.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo::tally;
  static const auto proxies = privateNetworks();
  static const auto stranger = asio::ip::make_address("192.0.2.1");
  static const auto proxy = asio::ip::make_address("10.0.0.1");
  const std::string_view header{reinterpret_cast<const char*>(data), size};
  if (forwardedAddress(header, stranger, proxies) != stranger) std::abort();
  const auto client = forwardedAddress(header, proxy, proxies);
  // The text of an address is an entry that leads to it, but for the scope behind a "%", which no rate looks at.
  if (rateKey(forwardedAddress(client.to_string(), proxy, proxies)) != rateKey(client)) std::abort();
  return 0;
}
