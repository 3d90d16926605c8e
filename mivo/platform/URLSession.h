// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>

namespace mivo {

/// A request that got no answer; `what()` is a sentence for the user's log.
class URLError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Plain GET requests. Thread: any; blocks until the answer is there, so it is called from tasks only.
class URLSession {
 public:
  virtual ~URLSession() = default;
  /// The body of the answer. Throws URLError for a dead network, a refused certificate, a time-out, a status that is
  /// not a success, or once `stop` is requested.
  virtual std::string data(std::string_view url, std::stop_token stop) const = 0;
  /// The same for a request that changes something: it leaves this machine once, or not at all. A session that may
  /// repeat a request on its own (when a kept connection breaks before the answer, say) must override this.
  virtual std::string dataSentOnce(std::string_view url, std::stop_token stop) const {
    return data(url, std::move(stop));
  }
};

}  // namespace mivo
