// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/model/UUID.h"

namespace mivo {

/// One weighing. Two that differ only in their id are two.
struct BodyWeightSample {
  UUID id;
  Date date;
  double weightInKg = 0;
  bool operator==(const BodyWeightSample&) const = default;
};

template <RecordOf<BodyWeightSample> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, date, weightInKg] = record;
  visit("id", id);
  visit("date", date);
  visit("weightInKg", weightInKg);
}

}  // namespace mivo
