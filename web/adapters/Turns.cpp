// SPDX-License-Identifier: MIT
#include "web/adapters/Turns.h"

#include <algorithm>

#include "web/adapters/Imports.h"

namespace mivo::web {

void Turns::postAfter(Duration delay, std::function<void()> work) const {
  constexpr double millisecondsPerSecond = 1000;
  waiting.emplace(++last, std::move(work));
  importedLater(last, std::max(0.0, delay.count() * millisecondsPerSecond));
}

void Turns::take(double ticket) const {
  if (const auto turn = waiting.extract(ticket)) turn.mapped()();
}

}  // namespace mivo::web
