// SPDX-License-Identifier: MIT
#include "host/data/ImportFeature.h"

#include <exception>
#include <utility>

#include "host/database/FaultText.h"

namespace mivo::host {
namespace {

using Action = ImportFeature::Action;
using State = ImportFeature::State;
using Phase = ImportFeature::Phase;

constexpr double leastProgress = 0.01;  // that is worth telling

void readAndPlan(const Send<Action>& send, const StopToken& stop, const DataFiles& files, const HistoryClient& history,
                 const std::vector<std::string>& paths, const ImportAnswers& answers) {
  double told = 0;
  const auto tell = [&](double fraction) {
    if (fraction < told + leastProgress) return;
    told = fraction;
    send(Action::didProgress{fraction});
  };
  auto read = files.read(paths, answers, tell, stop);
  if (!read) return send(Action::didRefuse{std::move(read.error())});
  ImportPlan plan = files.plan(history.load(), *read);
  send(Action::didRead{std::make_shared<const ImportPreview>(ImportPreview{std::move(*read), std::move(plan)})});
}

}  // namespace

std::vector<ImportAnswers> importAnswers(ImportFault::Asks asks) {
  using enum ImportFault::Asks;
  if (asks == dateOrder) return {{.dateOrder = DateOrder::dayFirst}, {.dateOrder = DateOrder::monthFirst}};
  if (asks == weightUnit)
    return {
        {.weightUnit = WeightUnit::kilograms}, {.weightUnit = WeightUnit::pounds}, {.weightUnit = WeightUnit::stones}};
  return {};
}

auto ImportFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  return std::visit([&](const auto& sent) { return on(state, sent); }, action);
}

auto ImportFeature::on(State& state, const Action::didChooseFiles& chosen) const -> Effect<Action> {
  state.paths = List<std::string>{chosen.paths};
  return read(state);
}

auto ImportFeature::on(State& state, const Action::didProgress& made) const -> Effect<Action> {
  state.progress = made.fraction;
  return {};
}

auto ImportFeature::on(State& state, const Action::didRead& done) const -> Effect<Action> {
  state.phase = Phase::ready;
  state.preview = done.preview;
  return {};
}

auto ImportFeature::on(State& state, const Action::didRefuse& refused) const -> Effect<Action> {
  state.phase = Phase::refused;
  state.fault = refused.fault;
  return {};
}

// Of what was read nothing is lost by that.
auto ImportFeature::on(State& state, const Action::didFail& failed) const -> Effect<Action> {
  state.phase = *state.preview ? Phase::ready : Phase::refused;
  state.failure = failed.sentence;
  return {};
}

auto ImportFeature::on(State& state, const Action::didAnswer& answered) const -> Effect<Action> {
  if (!*state.fault) return {};
  const auto offered = importAnswers((*state.fault)->asks);
  if (answered.place >= offered.size()) return {};
  const ImportAnswers& answer = offered[answered.place];
  ImportAnswers all = state.answers;
  if (answer.weightUnit) all.weightUnit = answer.weightUnit;
  if (answer.dateOrder) all.dateOrder = answer.dateOrder;
  state.answers = all;
  return read(state);
}

auto ImportFeature::on(State&, const Action::didTapImport&) const -> Effect<Action> { return {}; }

auto ImportFeature::read(State& state) const -> Effect<Action> {
  state.phase = Phase::reading;
  state.progress = 0.0;
  state.fault = std::nullopt;
  state.failure = std::string{};
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken& stop, const Client<DataFiles>& data,
         const Client<HistoryClient>& records, const Client<TextLookup>& lookup, const std::vector<std::string>& paths,
         const ImportAnswers& answers) {
        try {
          readAndPlan(send, stop, *data, *records, paths, answers);
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      files, history, texts, state.paths->elements(), *state.answers);
}

}  // namespace mivo::host
