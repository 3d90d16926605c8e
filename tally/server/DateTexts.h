// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <string>
#include <string_view>

namespace mivo::tally {

/// The instant of now as the Date header and the log write it, formatted once a second. Thread: one.
class DateTexts {
 public:
  using Instant = std::chrono::system_clock::time_point;
  /// "Tue, 24 Nov 2026 21:50:00 GMT"
  std::string_view http(Instant now);
  /// "2026-11-24T21:50:00.123Z"
  std::string_view log(Instant now);

 private:
  void refresh(std::time_t second);

  std::time_t secondShown = -1;
  std::string httpText;
  std::string logText;
};

}  // namespace mivo::tally
