// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace mivo {

/// Keeps an observer subscribed for as long as it lives. May be ended at any time, also while observers are called, and
/// after what is observed is gone.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;
  /// `kept` is let go when the subscription ends.
  explicit Subscription(std::weak_ptr<bool> active, std::shared_ptr<const void> kept = nullptr)
      : isActive{std::move(active)}, keeps{std::move(kept)} {}
  Subscription(Subscription&&) noexcept = default;
  Subscription& operator=(Subscription&& other) noexcept {
    end();
    isActive = std::move(other.isActive);
    keeps = std::move(other.keeps);
    return *this;
  }
  ~Subscription() { end(); }

  void end() {
    if (const auto active = isActive.lock()) *active = false;
    isActive.reset();
    keeps.reset();
  }

 private:
  std::weak_ptr<bool> isActive;
  std::shared_ptr<const void> keeps;
};

/// Observers that are told values, in the order in which they subscribed.
template <class... Values>
class Observers {
 public:
  Subscription add(std::function<void(const Values&...)> notify, std::shared_ptr<const void> kept = nullptr) {
    all.push_back(std::make_shared<Observer>(Observer{true, std::move(notify)}));
    return Subscription{std::shared_ptr<bool>{all.back(), &all.back()->isActive}, std::move(kept)};
  }

  /// Calls those that were subscribed when it began and still are. Any of them may add, end, clear or notify.
  void notify(const Values&... values) {
    ++running;
    for (std::size_t index = 0, count = all.size(); index < count && index < all.size(); ++index)
      if (Observer& observer = *all[index]; observer.isActive) observer.notify(values...);
    // Those that are running now must not be destroyed under their feet.
    if (--running == 0) std::erase_if(all, [](const auto& observer) { return !observer->isActive; });
  }

  void clear() {
    for (const auto& observer : all) observer->isActive = false;
    if (running == 0) all.clear();
  }

 private:
  struct Observer {
    bool isActive;
    std::function<void(const Values&...)> notify;
  };

  std::vector<std::shared_ptr<Observer>> all;
  int running = 0;
};

}  // namespace mivo
