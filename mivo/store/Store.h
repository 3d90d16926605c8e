// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cassert>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "mivo/platform/Client.h"
#include "mivo/platform/DependencyContext.h"
#include "mivo/platform/IssueReporting.h"
#include "mivo/platform/MainQueue.h"
#include "mivo/platform/StopToken.h"
#include "mivo/platform/Subscription.h"
#include "mivo/platform/TaskRunner.h"
#include "mivo/store/Effect.h"
#include "mivo/store/Presentation.h"
#include "mivo/store/ScopedStore.h"

namespace mivo {

/// Holds the state of a feature and is the only one that changes it, by sending actions through the feature's reducer.
///
///     Store store{StatisticsFeature::State{...}, StatisticsFeature{}, mainQueue, taskRunner};
///     const Subscription subscription = store.observe([](const auto& state) { ... compare the stamps you read ... });
///     store.send(StatisticsFeature::Action::onAppear{});
///
/// One action is reduced, then every observer is called once, then the tasks of its effects are started. An action sent
/// from inside a reduction or an observer waits until that is through. The dependencies in force where the store was
/// made are in force in its reductions, its observers and its tasks.
///
/// Stands, as all of the module, on the standard library of C++20 alone: GCC's from 12, LLVM's from 17 without its
/// experimental parts.
///
/// Thread: the main one, and only tasks elsewhere. Destroying the store requests its tasks to stop and waits for none;
/// what they send later is dropped. An observer may destroy it.
template <class Feature>
class Store {
 public:
  using State = typename Feature::State;
  using Action = typename Feature::Action;

  Store(State initial, Feature feature, Client<MainQueue> mainQueue, Client<TaskRunner> taskRunner)
      : core{std::make_shared<Core>(std::move(initial), std::move(feature), std::move(mainQueue),
                                    std::move(taskRunner))} {}
  ~Store() { core->close(); }
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  const State& state() const { return core->state; }

  void send(Action action) { core->receive({std::move(action), nullptr}); }

  /// Calls `observer` with the state once after each action, not for the present state.
  Subscription observe(std::function<void(const State&)> observer) {
    Core* self = core.get();  // observers are cleared before the core goes
    return core->observers.add([self, observer = std::move(observer)] { observer(self->state); });
  }

  /// A store for one part of the screen: the part of the state at `path`, its actions sent as that case. A path that
  /// answers with a pointer is for a child that is not always there.
  template <class Case, class Path>
  auto scope(Path path) {
    return whole().template scope<Case>(std::move(path));
  }

  /// A store for one part of the state that sends this store's own actions.
  template <class Path>
  auto scope(Path path) {
    return whole().scope(std::move(path));
  }

 private:
  // A task that was asked for; shared by all that may still send for it.
  struct Running {
    StopSource stop;
    std::vector<Stamp> owners;
  };

  struct Received {
    Action action;
    std::shared_ptr<const Running> sender;  // none for actions that no task sent
  };

  struct Core : std::enable_shared_from_this<Core> {
    State state;
    const Feature feature;
    const Client<MainQueue> mainQueue;
    const Client<TaskRunner> taskRunner;
    const std::shared_ptr<const Dependencies> context = currentContext();
    Observers<> observers;
    std::deque<Received> waiting;
    std::vector<std::shared_ptr<Running>> tasks;
    bool isBusy = false, isClosed = false;
#ifndef NDEBUG
    const std::thread::id mainThread = std::this_thread::get_id();
#endif

    Core(State initial, Feature ownFeature, Client<MainQueue> queue, Client<TaskRunner> runner)
        : state(std::move(initial)),
          feature(std::move(ownFeature)),
          mainQueue{std::move(queue)},
          taskRunner{std::move(runner)} {}

    void receive(Received received) {
      assert(std::this_thread::get_id() == mainThread && "a store is used on the main thread only");
      if (isClosed) return;
      if (isBusy) return waiting.push_back(std::move(received));
      const auto alive = this->shared_from_this();  // an observer may destroy the store
      isBusy = true;
      process(received);
      while (!waiting.empty() && !isClosed) {
        const Received next = std::move(waiting.front());
        waiting.pop_front();
        process(next);
      }
      isBusy = false;
    }

    void process(const Received& received) {
      if (received.sender && received.sender->stop.stopRequested()) return;
      const Effect<Action> effect = reduce(received.action);
      std::vector<std::shared_ptr<Running>> started;
      for (const auto& operation : effect.operations()) started.push_back(registered(operation));
      if (!tasks.empty()) cancelWhatIsNoLongerPresented();
      notifyObservers();
      if (isClosed) return;
      for (std::size_t index = 0; index < started.size(); ++index)
        if (!started[index]->stop.stopRequested()) start(effect.operations()[index], started[index]);
    }

    Effect<Action> reduce(const Action& action) {
      const DependencyScope dependencies{context};
      return feature.reduce(state, action);
    }

    void notifyObservers() {
      const DependencyScope dependencies{context};
      observers.notify();
    }

    std::shared_ptr<Running> registered(const typename Effect<Action>::Operation& operation) {
      std::erase_if(tasks, [](const auto& task) { return task.use_count() == 1; });  // nothing can send for it any more
      return tasks.emplace_back(std::make_shared<Running>(Running{{}, operation.owners}));
    }

    void cancelWhatIsNoLongerPresented() {
      if (std::ranges::all_of(tasks, [](const auto& task) { return task->owners.empty(); })) return;
      std::vector<Stamp> presented;
      forEachPresented(state, [&presented](Stamp identity) { presented.push_back(identity); });
      const auto isGone = [&presented](Stamp owner) { return std::ranges::find(presented, owner) == presented.end(); };
      for (const auto& task : tasks)
        if (std::ranges::any_of(task->owners, isGone)) task->stop.requestStop();
    }

    void start(const typename Effect<Action>::Operation& operation, const std::shared_ptr<Running>& task) {
      taskRunner->run([run = operation.run, send = sendOf(task), task, dependencies = context] {
        const DependencyScope scope{dependencies};
        if (!task->stop.stopRequested()) runGuarded(run, send, task->stop.token());
      });
    }

    Send<Action> sendOf(const std::shared_ptr<Running>& task) {
      return Send<Action>{[mailbox = this->weak_from_this(), queue = mainQueue, task](Action action) {
        if (task->stop.stopRequested()) return;
        queue->post([mailbox, task, action = std::move(action)]() mutable {
          if (const auto core = mailbox.lock()) core->receive({std::move(action), std::move(task)});
        });
      }};
    }

    static void runGuarded(const auto& run, const Send<Action>& send, StopToken stop) {
      try {
        run(send, std::move(stop));
      } catch (const std::exception& error) {
        reportIssue(std::string{"a task ended with an error: "} + error.what());
      }
    }

    void close() {
      isClosed = true;
      for (const auto& task : tasks) task->stop.requestStop();
      observers.clear();
    }
  };

  ScopedStore<State, Action> whole() {
    const std::weak_ptr<Core> weak = core;
    return {[weak]() -> const State* {
              const auto alive = weak.lock();
              return alive && !alive->isClosed ? &alive->state : nullptr;
            },
            [weak](Action action) {
              if (const auto alive = weak.lock()) alive->receive({std::move(action), nullptr});
            },
            [weak](std::function<void()> notify) {
              const auto alive = weak.lock();
              return alive ? alive->observers.add(std::move(notify)) : Subscription{};
            }};
  }

  std::shared_ptr<Core> core;
};

}  // namespace mivo
