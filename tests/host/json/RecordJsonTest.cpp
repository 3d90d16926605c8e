// SPDX-License-Identifier: MIT
#include "host/json/RecordJson.h"

#include <gtest/gtest.h>

#include <vector>

#include "mivo/model/Record.h"
#include "mivo/model/TimeRange.h"
#include "mivo/store/List.h"

namespace mivo::host {
namespace {

struct Weighing {
  UUID id;
  Date date;
  double weightInKg = 0;
};
template <RecordOf<Weighing> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [id, date, weightInKg] = record;
  visit("id", id);
  visit("date", date);
  visit("weightInKg", weightInKg);
}

struct Summary {
  Observed<std::int64_t> totalFasts;
  Observed<List<Weighing>> weights;
  std::optional<double> trend;
  TimeRange timeRange;
  std::vector<std::string> labels;
  bool isOver;
};
template <RecordOf<Summary> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [totalFasts, weights, trend, timeRange, labels, isOver] = record;
  visit("totalFasts", totalFasts);
  visit("weights", weights);
  visit("trend", trend);
  visit("timeRange", timeRange);
  visit("labels", labels);
  visit("isOver", isOver);
}

}  // namespace

template <>
struct JsonFields<Weighing> : std::true_type {
  static void visit(const Weighing& record, auto&& visit) {
    visit("date", record.date);
    visit("weightInKg", record.weightInKg);
  }
};

namespace {

TEST(RecordJson, walksTheFieldsOfARecord) {
  const Summary summary{3,   List<Weighing>{{{}, dateSince1970(0.5), 81.4}}, std::nullopt, TimeRange::week, {"a", "b"},
                        true};
  JsonWriter json;
  writeJson(json, summary);
  EXPECT_EQ(std::move(json).text(), R"({
  "totalFasts": 3,
  "weights": [
    {"date": "1970-01-01T00:00:00.5Z", "weightInKg": 81.4}
  ],
  "trend": null,
  "timeRange": "week",
  "labels": ["a", "b"],
  "isOver": true
}
)");
}

}  // namespace
}  // namespace mivo::host
