// SPDX-License-Identifier: MIT
#include "app/reminder/WallClockAlarm.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <system_error>

#include "adapters/standard/SystemClock.h"

namespace mivo::app {
namespace {

constexpr double nanosecondsPerSecond = 1e9;

int madeTimer() {
  const int made = ::timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK);
  if (made < 0) throw std::system_error{errno, std::generic_category(), "no timer could be made"};
  return made;
}

timespec timeOf(Date instant) {
  const double seconds = std::floor(secondsSince1970(instant));
  const double rest = (secondsSince1970(instant) - seconds) * nanosecondsPerSecond;
  // All zeros would stop the timer.
  return {static_cast<std::time_t>(seconds), std::max(1L, static_cast<long>(rest))};
}

}  // namespace

WallClockAlarm::WallClockAlarm() : timer{madeTimer()}, notifier{timer.get(), QSocketNotifier::Read} {
  connect(&notifier, &QSocketNotifier::activated, this, &WallClockAlarm::ring);
  setTo(std::nullopt);
}

void WallClockAlarm::setTo(std::optional<Date> instant) {
  const Date now = adapters::SystemClock{}.now(), atLast = now + Duration{secondsPerDay};
  itimerspec when{};
  when.it_value = timeOf(std::clamp(instant.value_or(atLast), now, atLast));
  if (::timerfd_settime(timer.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr) != 0 &&
      errno != ECANCELED)
    throw std::system_error{errno, std::generic_category(), "the timer could not be set"};
}

void WallClockAlarm::ring() {
  std::uint64_t times = 0;
  if (::read(timer.get(), &times, sizeof times) < 0 && errno != ECANCELED) return;
  Q_EMIT rang();
}

}  // namespace mivo::app
