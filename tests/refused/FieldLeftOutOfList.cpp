// SPDX-License-Identifier: MIT
// error: only 2 names provided for structured binding
// error: decomposes into 3 elements, but only 2 names were provided
#include "mivo/store/Print.h"

struct Record {
  int one, two, three;
};

template <mivo::RecordOf<Record> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
#ifdef FAULT
  auto& [one, two] = record;
#else
  auto& [one, two, three] = record;
  visit("three", three);
#endif
  visit("one", one);
  visit("two", two);
}

std::string text(const Record& record) { return mivo::printed(record); }
