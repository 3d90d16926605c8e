// SPDX-License-Identifier: MIT
#include "adapters/standard/LocalUUIDGenerator.h"
#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/records/RecordTables.h"
#include "cli/usage/Usage.h"
#include "host/fasting/Fasting.h"
#include "host/history/Snapshot.h"
#include "mivo/weights/WeightText.h"

namespace mivo::cli {
namespace {

std::string answer(const RecordRun& run, std::string_view pattern, const BodyWeightSample& sample,
                   const std::vector<BodyWeightSample>& all) {
  return filledIn(run.texts->text(pattern), {described(sample, idsOf(all), run)}) + '\n';
}

bool isWeightWithoutUnit(const std::string& typed) {
  const auto read = readWeight(typed, std::nullopt);
  return std::holds_alternative<WeightTextFault>(read) && std::get<WeightTextFault>(read) == WeightTextFault::noUnit;
}

/// Whoever reads pounds and types a bare number may mean either.
void demandUnit(const RecordRun& run) {
  const std::string& typed = run.options.weight;
  const WeightUnit shown = run.weightUnit();
  if (shown == WeightUnit::kilograms || !isWeightWithoutUnit(typed)) return;
  if (!parseTypedWeight(typed, WeightUnit::kilograms) && !parseTypedWeight(typed, shown)) return;
  throw Refused{wrongUsage, "WEIGHT: " + typed + " kg or " + typed + ' ' + std::string{weightUnitSign(shown)} +
                                "? Type its unit too"};
}

std::string add(const RecordRun& run) {
  constexpr double noWeight = 0;  // which no body has
  demandUnit(run);
  const BodyWeightSample sample{adapters::LocalUUIDGenerator{}.next(), run.dateOrNow("--at", run.options.at),
                                parseTypedWeight(run.options.weight, WeightUnit::kilograms).value_or(noWeight)};
  HistoryFile file = run.open();
  const auto weights = file.history().weights;
  const auto outcome = host::addingWeight(weights, sample, run.weightUnit(), *run.formatters.massFormatter, run.now);
  if (const auto* same = outcome ? nullptr : std::get_if<host::IsSavedAlready>(&outcome.error()))
    return answer(run, translatable("Saved already: {1}"), same->saved, weights);
  file.apply(run.change(outcome));
  return answer(run, translatable("Added {1}"), sample, file.history().weights);
}

std::string remove(const RecordRun& run) {
  HistoryFile file = run.open();
  const auto weights = file.history().weights;
  const BodyWeightSample sample = weights[placeOf(run, idsOf(weights), "weight")];
  file.apply(run.change(host::removingWeight(weights, sample.id)));
  return answer(run, translatable("Removed {1}"), sample, weights);
}

std::string list(const RecordRun& run) {
  const auto asJson = readFormat(run.options.format);
  if (!asJson) throw Refused{wrongUsage, asJson.error()};
  const auto weights = run.history().weights;
  return *asJson ? host::writeWeights(weights) : weightTable(weights, run);
}

}  // namespace

int runWeightAdd(const RecordOptions& options) { return runRecordCommand(options, add); }
int runWeightList(const RecordOptions& options) { return runRecordCommand(options, list); }
int runWeightRemove(const RecordOptions& options) { return runRecordCommand(options, remove); }

}  // namespace mivo::cli
