// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace mivo {

/// Keeps an observer subscribed for as long as it lives. May be ended at any time, also while observers are called, and
/// after the store is gone.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::weak_ptr<bool> active) : isActive{std::move(active)} {}
  Subscription(Subscription&&) = default;
  Subscription& operator=(Subscription&& other) {
    end();
    isActive = std::move(other.isActive);
    return *this;
  }
  ~Subscription() { end(); }

  void end() {
    if (const auto active = isActive.lock()) *active = false;
    isActive.reset();
  }

 private:
  std::weak_ptr<bool> isActive;
};

/// The observers of a store, called in the order in which they subscribed.
class Observers {
 public:
  Subscription add(std::function<void()> notify) {
    all.push_back(std::make_shared<Observer>(Observer{true, std::move(notify)}));
    return Subscription{std::shared_ptr<bool>{all.back(), &all.back()->isActive}};
  }

  /// Calls those that were subscribed when it began and still are. Any of them may add, end or clear.
  void notify() {
    isNotifying = true;
    for (std::size_t index = 0, count = all.size(); index < count && index < all.size(); ++index)
      if (Observer& observer = *all[index]; observer.isActive) observer.notify();
    isNotifying = false;
    std::erase_if(all, [](const auto& observer) { return !observer->isActive; });
  }

  void clear() {
    for (const auto& observer : all) observer->isActive = false;
    if (!isNotifying) all.clear();  // the one that is running now must not be destroyed under its feet
  }

 private:
  struct Observer {
    bool isActive;
    std::function<void()> notify;
  };

  std::vector<std::shared_ptr<Observer>> all;
  bool isNotifying = false;
};

}  // namespace mivo
