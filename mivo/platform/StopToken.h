// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace mivo {

struct StopState;

/// Whether a task was asked to stop. Copies ask the same source, and may outlive it.
///
///     for (const auto& file : files) {
///       if (stop.stopRequested()) return;
///       read(file);
///     }
///
/// What `std::stop_token` is, which the standard libraries of phones and browsers lack. One that was made without a
/// source is never asked. Thread: any; each object by one thread at a time, as with a shared pointer.
class StopToken {
 public:
  StopToken() = default;
  bool stopRequested() const noexcept;

 private:
  friend class StopSource;
  friend class StopCallback;
  explicit StopToken(std::shared_ptr<StopState> shared) : state{std::move(shared)} {}

  std::shared_ptr<StopState> state;
};

/// Asks the holders of its tokens to stop, once and for good. Copies are the same source. Thread: any, as its tokens.
class StopSource {
 public:
  StopSource();

  StopToken token() const { return StopToken{state}; }
  bool stopRequested() const noexcept;

  /// Answers whether this was the first request; the callbacks of the tokens have then run on this thread, one after
  /// the other. What was written before the request is seen by whoever sees the request.
  bool requestStop() noexcept;

 private:
  std::shared_ptr<StopState> state;
};

/// Calls a function once, when a stop is requested: on the requesting thread, or here at once if it was before.
///
///     const StopCallback wake{stop, [&] { connection.wake(); }};
///
/// Once it is destroyed the function is not called any more: where it runs on another thread just then, the destructor
/// waits for its end. The function may destroy its own callback; it must not throw.
class StopCallback {
 public:
  StopCallback(const StopToken& token, std::function<void()> function);
  ~StopCallback();
  StopCallback(const StopCallback&) = delete;
  StopCallback& operator=(const StopCallback&) = delete;

 private:
  friend class StopSource;

  const std::function<void()> call;
  std::shared_ptr<StopState> registered;  // none where there is nothing to wait for
};

}  // namespace mivo
