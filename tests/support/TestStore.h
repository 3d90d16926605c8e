// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <source_location>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "mivo/store/Print.h"
#include "mivo/store/Store.h"
#include "tests/support/Differences.h"
#include "tests/support/TestWorld.h"

namespace mivo::tests {

/// Drives a feature step by step. Every step says which change it expects; each action that an effect sends must be
/// received, in turn; what is unexpected or left over fails the test with the fields that differ.
///
///     TestStore store{world, State{...}, StatisticsFeature{}};
///     store.send(Action::onAppear{}, [](State& state) { state.showHealthKitCard = true; });
///     store.receive(Action::didReceiveTipID{"streaks"}, [](State& state) { state.currentTipID = "streaks"; });
///
/// `receive` lets the tasks run first; a test that wants them to run later or never drives `world.tasks` itself.
template <class Feature>
class TestStore {
 public:
  using State = typename Feature::State;
  using Action = typename Feature::Action;
  using Change = std::function<void(State&)>;
  using Where = std::source_location;

  TestStore(const TestWorld& world, State initial, Feature feature)
      : queue{world.queue},
        tasks{world.tasks},
        store{std::move(initial), Recording{std::move(feature), reduced}, queue, tasks} {}

  ~TestStore() { finish(); }
  TestStore(const TestStore&) = delete;
  TestStore& operator=(const TestStore&) = delete;

  const State& state() const { return store.state(); }

  void send(const Action& action, const Change& change = {}, Where where = Where::current()) {
    expectNothingWaits("before sending " + printed(action), where);
    expectChange("sent " + printed(action), change, where, [&] { store.send(action); });
  }

  void receive(const Action& expected, const Change& change = {}, Where where = Where::current()) {
    tasks->runAll();
    const std::string step = "receiving " + printed(expected);
    expectChange(step, change, where, [&] {
      while (reduced->empty() && queue->runOne()) {
      }
      if (reduced->empty())
        fail(where) << step << ": no effect sent an action";
      else if (!(reduced->front() == expected))
        fail(where) << step << ": received " << printed(reduced->front());
    });
  }

  /// Runs what is left and fails for every action that was not received; also called at the end.
  void finish(Where where = Where::current()) {
    tasks->runAll();
    expectNothingWaits("at the end", where);
  }

 private:
  struct Recording {
    using State = typename Feature::State;
    using Action = typename Feature::Action;
    Feature feature;
    std::shared_ptr<std::vector<Action>> reduced;

    Effect<Action> reduce(State& state, const Action& action) const {
      reduced->push_back(action);
      return feature.reduce(state, action);
    }
  };

  struct Failure {
    Where where;
    std::ostringstream text;
    explicit Failure(Where at) : where{at} {}
    ~Failure() { ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line())) << text.str(); }
    Failure& operator<<(const auto& part) { return text << part, *this; }
  };

  static Failure fail(Where where) { return Failure{where}; }

  void expectChange(const std::string& step, const Change& change, Where where, const std::function<void()>& action) {
    State expected = store.state();
    reduced->clear();
    action();
    if (change) change(expected);
    const std::string lines = differences(expected, store.state());
    if (!lines.empty()) fail(where) << step << ": the state is not as expected\n" << lines;
    for (std::size_t index = 1; index < reduced->size(); ++index)
      fail(where) << step << ": unexpected action " << printed((*reduced)[index]);
    reduced->clear();
  }

  void expectNothingWaits(const std::string& step, Where where) {
    reduced->clear();
    queue->runAll();
    for (const Action& action : *reduced) fail(where) << step << ": not received: " << printed(action);
    reduced->clear();
  }

  std::shared_ptr<const HandDrivenQueue> queue;
  std::shared_ptr<const HandDrivenTasks> tasks;
  std::shared_ptr<std::vector<Action>> reduced = std::make_shared<std::vector<Action>>();
  Store<Recording> store;
};

}  // namespace mivo::tests
