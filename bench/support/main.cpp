// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "adapters/system/FreedMemory.h"

int main(int count, char** arguments) {
  mivo::adapters::keepFreedMemory();  // as `mivo` does, so that no page is counted twice
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  benchmark::RunSpecifiedBenchmarks();
}
