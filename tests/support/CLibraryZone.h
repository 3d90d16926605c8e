// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace mivo::tests {

/// What the C library says of a zone, for as long as this lives: it sets TZ, so one at a time.
class CLibraryZone {
 public:
  explicit CLibraryZone(const std::string& name) {
    if (const char* before = std::getenv("TZ")) previous = before;
    // The colon asks for a file, never for a rule spelled in the variable.
    use((':' + name).c_str());
  }
  ~CLibraryZone() { use(previous ? previous->c_str() : nullptr); }
  CLibraryZone(const CLibraryZone&) = delete;
  CLibraryZone& operator=(const CLibraryZone&) = delete;

  std::chrono::seconds offset(std::chrono::sys_seconds instant) const {
    const std::time_t time = instant.time_since_epoch().count();
    std::tm fields{};
    localtime_r(&time, &fields);
    return std::chrono::seconds{fields.tm_gmtoff};
  }

  std::chrono::local_days date(std::chrono::sys_seconds instant) const {
    const std::time_t time = instant.time_since_epoch().count();
    std::tm fields{};
    localtime_r(&time, &fields);
    return std::chrono::local_days{std::chrono::year{fields.tm_year + 1900} / (fields.tm_mon + 1) / fields.tm_mday};
  }

 private:
  static void use(const char* value) {
    value ? setenv("TZ", value, 1) : unsetenv("TZ");
    tzset();
  }
  std::optional<std::string> previous;
};

/// The first instant of [from, to) for which `holds`, which must hold from then on up to `to`; `to` where it never
/// does.
template <class Predicate>
std::chrono::sys_seconds firstThat(std::chrono::sys_seconds from, std::chrono::sys_seconds to, Predicate holds) {
  while (from < to) {
    const std::chrono::sys_seconds middle = from + (to - from) / 2;
    if (holds(middle))
      to = middle;
    else
      from = middle + std::chrono::seconds{1};
  }
  return to;
}

}  // namespace mivo::tests
