// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tally/request/Decision.h"
#include "tally/request/RequestReader.h"

namespace {

bool liesIn(std::string_view part, std::string_view whole) {
  return part.empty() || (part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo::tally;
  const std::string_view bytes{reinterpret_cast<const char*>(data), size};
  const auto reading = readRequest(bytes);
  if (reading.consumed > size) std::abort();
  if (reading.state != RequestReading::State::complete) return 0;
  const auto& request = reading.request;
  for (const auto part : {request.methodName, request.target, request.host, request.origin, request.referer,
                          request.fetchSite, request.forwardedFor})
    if (!liesIn(part, bytes.substr(0, reading.consumed))) std::abort();
  // Where a request ends does not depend on what comes behind it.
  const auto alone = readRequest(bytes.substr(0, reading.consumed));
  if (alone.state != RequestReading::State::complete || alone.consumed != reading.consumed) std::abort();
  static const VotePolicy policy{.allowedOrigins = {"https://app.example"}, .hosts = {.names = {"localhost"}}};
  const bool isVote = std::holds_alternative<AddVote>(decide(request, policy));
  if (isVote && (request.method != Method::get || request.isPrefetch)) std::abort();
  return 0;
}
