// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "mivo/platform/URLSession.h"

namespace mivo::web {

/// Requests that the browser makes. Nothing waits for one: it calls back, or gives up after a time (`fetchText.mjs`).
/// Thread: the only one.
class FetchSession final : public URLSession {
 public:
  FetchSession();
  ~FetchSession() override;

  void data(std::string_view url, StopToken stop, Completion<std::string> completion) const override;

  /// What became of a request: the body of its answer, or the reason why there is none.
  void answered(double ticket, bool hasFailed, std::string text) const;

 private:
  struct Request;
  mutable std::map<double, std::unique_ptr<Request>> waiting;
  mutable double last = 0;
};

}  // namespace mivo::web
