// SPDX-License-Identifier: MIT
#include <iostream>

#include "data/generate/SampleHistories.h"
#include "host/history/Snapshot.h"

int main(int count, char** arguments) {
  const auto history = count == 2 ? mivo::data::sampleHistory(arguments[1]) : std::nullopt;
  if (!history) {
    std::cerr << "usage: mivo_generate three-weeks|one-year|ten-years\n";
    return 2;
  }
  std::cout << mivo::host::writeSnapshot(*history) << std::flush;
  return std::cout ? 0 : 1;
}
