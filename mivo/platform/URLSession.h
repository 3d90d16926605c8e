// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "mivo/platform/Answer.h"
#include "mivo/platform/StopToken.h"

namespace mivo {

/// A request that got no answer; `what()` is a sentence for the user's log.
class URLError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Plain GET requests. Thread: any; it may take its time before it returns, so it is called from tasks only.
class URLSession {
 public:
  virtual ~URLSession() = default;
  /// Asks for the body of an answer. The error is a URLError: for a dead network, a refused certificate, a time-out, a
  /// status that is not a success, or once `stop` is requested.
  virtual void data(std::string_view url, StopToken stop, Completion<std::string> completion) const = 0;
  /// The same for a request that changes something: it leaves this machine once, or not at all. A session that may
  /// repeat a request on its own (when a kept connection breaks before the answer, say) must override this.
  virtual void dataSentOnce(std::string_view url, StopToken stop, Completion<std::string> completion) const {
    data(url, std::move(stop), std::move(completion));
  }
};

}  // namespace mivo
