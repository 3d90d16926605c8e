// SPDX-License-Identifier: MIT
#include "host/data/BackupsFeature.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "host/database/FaultText.h"

namespace mivo::host {
namespace {

using Action = BackupsFeature::Action;
using State = BackupsFeature::State;
using Outcome = BackupsFeature::Outcome;

Outcome outcomeOf(const std::optional<KeptBackup>& kept) {
  if (!kept) return Outcome::nothingThere;
  return kept->isNew ? Outcome::made : Outcome::unchanged;
}

}  // namespace

auto BackupsFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  return std::visit([&](const auto& sent) { return on(state, sent); }, action);
}

auto BackupsFeature::on(State&, const Action::list& asked) const -> Effect<Action> {
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<DataFiles>& data, const Client<TextLookup>& lookup,
         bool areCounted) {
        try {
          BackupPlace place = data->backupPlace();
          auto listed = data->backups(place.folder(), areCounted);
          send(Action::didList{std::move(place), std::move(listed)});
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      files, texts, asked.areCounted);
}

// A backup never changes: what is known of one stays known.
auto BackupsFeature::on(State& state, const Action::didList& listed) const -> Effect<Action> {
  auto backups = listed.backups;
  for (ListedBackup& one : backups) {
    const auto known = std::ranges::find(*state.backups, one.backup, &ListedBackup::backup);
    if (!one.counts && !one.fault && known != state.backups->end()) one = *known;
  }
  state.place = listed.place;
  state.backups = List<ListedBackup>{std::move(backups)};
  return {};
}

auto BackupsFeature::on(State& state, const Action::didTapBackUp&) const -> Effect<Action> {
  if (*state.isWorking) return {};
  state.isWorking = true;
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<DataFiles>& data,
         const Client<HistoryClient>& records, const Client<TextLookup>& lookup, Date now) {
        try {
          send(Action::didBackUp{outcomeOf(data->backUp(records->load(), now))});
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      files, history, texts, date->now());
}

auto BackupsFeature::on(State& state, const Action::didBackUp&) const -> Effect<Action> {
  state.isWorking = false;
  return on(state, Action::list{true});
}

// Looking at a folder of another machine may take its time.
auto BackupsFeature::on(State& state, const Action::didChooseFolder& chosen) const -> Effect<Action> {
  if (*state.isWorking) return {};
  state.isWorking = true;
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<DataFiles>& data, const Client<TextLookup>& lookup,
         const std::string& path) {
        try {
          const BackupPlace before = data->backupPlace();
          const auto now = data->chooseBackupFolder(path, *lookup);
          if (!now) return send(Action::didFail{now.error()});
          send(Action::didMove{backupPlaceText(before, *now, *lookup)});
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      files, texts, chosen.path);
}

auto BackupsFeature::on(State& state, const Action::didMove&) const -> Effect<Action> {
  state.isWorking = false;
  return on(state, Action::list{true});
}

auto BackupsFeature::on(State& state, const Action::didFail&) const -> Effect<Action> {
  state.isWorking = false;
  return {};
}

auto BackupsFeature::on(State& state, const Action::didChoose& chosen) const -> Effect<Action> {
  if (chosen.row < state.backups->size() && (*state.backups)[chosen.row].counts)
    state.chosen = (*state.backups)[chosen.row];
  return {};
}

auto BackupsFeature::on(State& state, const Action::didDismiss&) const -> Effect<Action> {
  state.chosen = std::nullopt;
  state.failure = std::string{};
  return {};
}

auto BackupsFeature::on(State&, const Action::didTapRestore&) const -> Effect<Action> { return {}; }

}  // namespace mivo::host
