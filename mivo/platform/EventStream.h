// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <tuple>
#include <utility>

#include "mivo/model/Date.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/MainQueue.h"
#include "mivo/platform/Subscription.h"

namespace mivo {

/// Events for whoever subscribed, delivered inside `send` in the order of subscription; it never fails and never ends.
/// `EventStream<>` carries empty values. Copies are the same stream.
///
///     cancellable = voidSubject.debounce(10ms, mainQueue).subscribe([weak = weak_from_this()] {
///       if (const auto model = weak.lock()) model->announceChange();
///     });
///
/// A subscription keeps the streams that it hangs on, and nothing keeps it: releasing it is its end, also for an event
/// that waits in a debounce. Thread: the main one.
template <class... Values>
class EventStream {
 public:
  void send(const Values&... values) const {
    const auto alive = core;  // a subscriber may release the stream
    alive->observers.notify(values...);
  }

  Subscription subscribe(std::function<void(const Values&...)> receive) const {
    return core->observers.add(std::move(receive), core);
  }

  /// A stream that passes on the last event of a burst, once `interval` has gone by on the queue without another.
  EventStream debounce(Duration interval, const Client<MainQueue>& queue) const {
    EventStream debounced;
    const std::weak_ptr<Core> weak = debounced.core;
    debounced.core->source = subscribe([weak, interval, queue](const Values&... values) {
      if (const auto later = weak.lock()) later->postpone(interval, *queue, {values...}, weak);
    });
    return debounced;
  }

 private:
  struct Core {
    Observers<Values...> observers;
    Subscription source;  // what a debounced stream hangs on
    std::uint64_t received = 0;

    void postpone(Duration interval, const MainQueue& queue, std::tuple<Values...> event,
                  const std::weak_ptr<Core>& weak) {
      queue.postAfter(interval, [weak, number = ++received, event = std::move(event)] {
        const auto alive = weak.lock();
        if (alive && alive->received == number)
          std::apply([&](const Values&... values) { alive->observers.notify(values...); }, event);
      });
    }
  };

  std::shared_ptr<Core> core = std::make_shared<Core>();
};

}  // namespace mivo
