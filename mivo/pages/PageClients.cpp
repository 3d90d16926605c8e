// SPDX-License-Identifier: MIT
#include "mivo/pages/PageClients.h"

#include <algorithm>

namespace mivo {

PageClients pageClients(const Dependencies& dependencies, Date now) {
  return {.now = now,
          .calendar = *dependencies.calendar,
          .texts = *dependencies.texts,
          .dates = *dependencies.dateFormatter,
          .hourMin = *dependencies.hourMinDurationUnitFormatter,
          .hour = *dependencies.hourDurationUnitFormatter,
          .numbers = *dependencies.numberFormatter,
          .masses = *dependencies.massFormatter};
}

std::string twoDigits(std::int64_t number, const NumberFormatter& numbers) {
  return (number < 10 ? numbers.string(std::int64_t{0}) : "") + numbers.string(number);
}

std::string durationText(double seconds, const PageClients& clients) {
  return clients.hourMin.string(std::max(0.0, seconds)).value_or("");
}

}  // namespace mivo
