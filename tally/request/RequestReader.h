// SPDX-License-Identifier: MIT
#pragma once
#include <cstddef>
#include <optional>

#include "tally/request/Answer.h"
#include "tally/request/Request.h"

namespace mivo::tally {

/// A request's line and headers may take this many bytes; a longer one is refused with 431.
inline constexpr std::size_t largestRequest = 8192;

struct RequestReading {
  enum class State { needsMore, complete, refused };
  State state = State::needsMore;
  std::size_t consumed = 0;  // bytes that will not be looked at again; none where refused
  Request request;
  Refusal refusal;  // the connection cannot be read further after one
};

/// Reads the first request of `bytes`, which may hold several, or only the beginning of one.
///
/// A body is refused, since no request here has use for one: with it goes every disagreement with a balancer about
/// where a request ends. So are folded header lines, an HTTP/1.1 request without Host, and two Hosts or Origins. Errors
/// state `refused`, with the answer to give.   Cost: one pass, no allocation.   Thread: any.
RequestReading readRequest(std::string_view bytes);

}  // namespace mivo::tally
