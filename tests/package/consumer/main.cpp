// SPDX-License-Identifier: MIT
#include "mivo/model/Fasts.h"
#include "mivo/store/Observed.h"

int main() {
  const mivo::Date start = mivo::dateSince1970(1772366400);
  const auto fast = mivo::finishedFast({1, 2}, start, start + mivo::Duration{16 * mivo::secondsPerHour}, 57600);
  const mivo::Observed<double> hours = fast.finished->duration() / mivo::secondsPerHour;
  return hours == 16 ? 0 : 1;
}
