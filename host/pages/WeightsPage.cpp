// SPDX-License-Identifier: MIT
#include "host/pages/WeightsPage.h"

#include "mivo/pages/DateTimeText.h"

namespace mivo::host {

const BodyWeightSample* weightOf(const List<BodyWeightSample>& weights, std::size_t row) {
  return row < weights.size() ? &weights[weights.size() - 1 - row] : nullptr;
}

WeightRow composeWeightRow(const BodyWeightSample& sample, WeightUnit unit, const PageClients& clients) {
  WeightRow row{.date = dayText(sample.date, clients),
                .time = clockText(sample.date, clients),
                .weight = clients.masses.string(sample.weightInKg, unit),
                .spoken = {}};
  row.spoken = row.date + ", " + row.time + ", " + row.weight;
  return row;
}

std::string weightsSpoken(const List<BodyWeightSample>& weights, std::size_t row, WeightUnit unit,
                          const PageClients& clients) {
  const std::string title = clients.texts.text("Weights");
  const BodyWeightSample* sample = weightOf(weights, row);
  return sample ? title + ", " + composeWeightRow(*sample, unit, clients).spoken : title;
}

WeightsPage composeWeightsPage(const List<BodyWeightSample>& weights, const TextLookup& texts) {
  return {.openLabel = weights.empty() ? "" : texts.text("All weights"),
          .title = texts.text("Weights"),
          .note = texts.text("The weights that you save are listed here."),
          .count = static_cast<std::int64_t>(weights.size()),
          .menuTitle = texts.text("Weight"),
          .editLabel = texts.text("Edit weight"),
          .saveLabel = texts.text("Save"),
          .removeLabel = texts.text("Delete weight")};
}

RowChange rowChange(const List<BodyWeightSample>& before, const List<BodyWeightSample>& after) {
  if (before.sharesStorageWith(after)) return {};
  return rowChange(before.size(), after.size(), [&](std::size_t one, std::size_t other) {
    return *weightOf(before, one) == *weightOf(after, other);
  });
}

}  // namespace mivo::host
