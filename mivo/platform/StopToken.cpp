// SPDX-License-Identifier: MIT
#include "mivo/platform/StopToken.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace mivo {

struct StopState {
  std::atomic<bool> isRequested{false};
  std::mutex mutex;  // guards what follows
  std::vector<StopCallback*> waiting;
  const StopCallback* running = nullptr;
  std::thread::id requester;
  std::condition_variable callbackEnded;
};

bool StopToken::stopRequested() const noexcept { return state && state->isRequested; }

StopSource::StopSource() : state{std::make_shared<StopState>()} {}

bool StopSource::stopRequested() const noexcept { return state->isRequested; }

bool StopSource::requestStop() noexcept {
  const auto shared = state;  // a callback may destroy this source
  std::unique_lock lock{shared->mutex};
  if (shared->isRequested.exchange(true)) return false;
  shared->requester = std::this_thread::get_id();
  while (!shared->waiting.empty()) {
    StopCallback* const next = shared->waiting.back();
    shared->waiting.pop_back();
    shared->running = next;
    const std::function<void()> call = next->call;  // it may destroy the callback while it runs
    lock.unlock();
    call();
    lock.lock();
    shared->running = nullptr;
    shared->callbackEnded.notify_all();
  }
  return true;
}

StopCallback::StopCallback(const StopToken& token, std::function<void()> function) : call{std::move(function)} {
  if (!token.state) return;
  std::unique_lock lock{token.state->mutex};
  if (token.state->isRequested) {
    lock.unlock();
    call();
    return;
  }
  token.state->waiting.push_back(this);
  registered = token.state;
}

StopCallback::~StopCallback() {
  if (!registered) return;
  std::unique_lock lock{registered->mutex};
  if (std::erase(registered->waiting, this) > 0 || registered->requester == std::this_thread::get_id()) return;
  registered->callbackEnded.wait(lock, [this] { return registered->running != this; });
}

}  // namespace mivo
