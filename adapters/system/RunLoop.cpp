// SPDX-License-Identifier: MIT
#include "adapters/system/RunLoop.h"

#include <algorithm>
#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <chrono>
#include <utility>

namespace mivo::adapters {
namespace {

/// The clock's ticks overflow after 292 years.
constexpr Duration longestDelay = std::chrono::hours{24 * 365 * 100};

std::chrono::steady_clock::duration ticks(Duration delay) {
  const Duration held = delay > Duration::zero() ? std::min(delay, longestDelay) : Duration::zero();
  return std::chrono::ceil<std::chrono::steady_clock::duration>(held);
}

}  // namespace

struct RunLoop::Loop {
  boost::asio::io_context context{1};
  /// Keeps `run` waiting while nothing is posted.
  boost::asio::executor_work_guard<boost::asio::io_context::executor_type> work{context.get_executor()};
};

RunLoop::RunLoop() : loop{std::make_unique<Loop>()} {}

RunLoop::~RunLoop() = default;

void RunLoop::post(std::function<void()> work) const { boost::asio::post(loop->context, std::move(work)); }

void RunLoop::postAfter(Duration delay, std::function<void()> work) const {
  auto timer = std::make_unique<boost::asio::steady_timer>(loop->context, ticks(delay));
  auto& waiting = *timer;  // the handler keeps the timer, and the context the handler
  waiting.async_wait([timer = std::move(timer), work = std::move(work)](const boost::system::error_code& cancelled) {
    if (!cancelled) work();
  });
}

void RunLoop::run() {
  loop->context.run();
  loop->context.restart();
}

void RunLoop::stop() const { loop->context.stop(); }

}  // namespace mivo::adapters
