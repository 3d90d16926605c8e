// SPDX-License-Identifier: MIT
#include "host/health/HealthFeature.h"

#include <exception>
#include <utility>

#include "host/database/FaultText.h"

namespace mivo::host {
namespace {

using Action = HealthFeature::Action;
using State = HealthFeature::State;

constexpr double leastProgress = 0.01;  // that is worth telling

template <class Value>
void set(Observed<Value>& field, Value value) {
  if (*field != value) field = std::move(value);
}

void forget(State& state) {
  state.reading = std::nullopt;
  set(state.fault, std::string{});
  set(state.notice, std::string{});
}

void lookAt(const Send<Action>& send, const StopToken& stop, const DataFiles& files, const HistoryClient& history,
            const TextLookup& texts, const std::string& path) {
  double told = 0;
  const auto tell = [&](double fraction) {
    if (fraction < told + leastProgress) return;
    told = fraction;
    send(Action::didProgress{fraction});
  };
  auto found = readLinkedHealth(path, history.lastSynced(), files, tell, stop);
  if (stop.stopRequested()) return;
  if (!found) return send(Action::didFail{faultText(found.error(), texts)});
  if (!*found) return send(Action::didFindUnchanged{});
  send(Action::didRead{std::make_shared<const LinkedHealth>(std::move(**found))});
}

}  // namespace

auto HealthFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  if (!health) return {};
  return std::visit([&](const auto& sent) { return on(state, sent); }, action);
}

auto HealthFeature::on(State& state, const Action::onAppear&) const -> Effect<Action> {
  set(state.isOffered, health->isOffered());
  if (std::string linked = health->file(); linked != *state.file) {
    state.file = std::move(linked);
    forget(state);
  }
  if (state.file->empty() || state.reading || *state.isWriting) return {};
  state.reading = Reading{};
  return Effect<Action>::run(
             [](const Send<Action>& send, const StopToken& stop, const Client<DataFiles>& data,
                const Client<HistoryClient>& records, const Client<TextLookup>& lookup, const std::string& path) {
               try {
                 lookAt(send, stop, *data, *records, *lookup, path);
               } catch (const std::exception& error) {
                 send(Action::didFail{faultText(error, *lookup)});
               }
             },
             files, history, texts, *state.file)
      .ownedBy(state.reading.identity());
}

// The same one once more is tried once more.
auto HealthFeature::on(State& state, const Action::didLink& chosen) const -> Effect<Action> {
  health->link(chosen.path);
  forget(state);
  return on(state, Action::onAppear{});
}

auto HealthFeature::on(State& state, const Action::didUnlink&) const -> Effect<Action> {
  health->unlink();
  return on(state, Action::onAppear{});
}

auto HealthFeature::on(State& state, const Action::didProgress& made) const -> Effect<Action> {
  if (state.reading) state.reading->progress = made.fraction;
  return {};
}

auto HealthFeature::on(State& state, const Action::didFindUnchanged&) const -> Effect<Action> {
  state.reading = std::nullopt;
  set(state.fault, std::string{});
  return {};
}

auto HealthFeature::on(State& state, const Action::didRead& done) const -> Effect<Action> {
  state.reading = std::nullopt;
  state.isWriting = true;
  set(state.fault, std::string{});
  set(state.notice, noticeText(*done.read, *texts));
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<HistoryClient>& records,
         const Client<TextLookup>& lookup, const std::shared_ptr<const LinkedHealth>& read) {
        try {
          send(Action::didSync{read->path, records->sync(read->sync)});
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      history, texts, done.read);
}

// Another one may have been linked meanwhile.
auto HealthFeature::on(State& state, const Action::didSync& done) const -> Effect<Action> {
  state.isWriting = false;
  return done.path == *state.file ? Effect<Action>{} : on(state, Action::onAppear{});
}

auto HealthFeature::on(State& state, const Action::didFail& failed) const -> Effect<Action> {
  state.reading = std::nullopt;
  set(state.isWriting, false);
  set(state.fault, failed.sentence);
  return {};
}

}  // namespace mivo::host
