// SPDX-License-Identifier: MIT
#pragma once

#include <future>
#include <memory>
#include <utility>

namespace mivo::adapters {

/// What is called back with, for who has nothing else to do: waits on this thread.
///
///     awaited<std::int64_t>([&](auto completion) { voter.fetch(feature, {}, completion); });
template <class Value, class Ask>
Value awaited(Ask&& ask) {
  const auto answered = std::make_shared<std::promise<Value>>();
  std::future<Value> answer = answered->get_future();
  std::forward<Ask>(ask)([answered](Value value) { answered->set_value(std::move(value)); });
  return answer.get();
}

}  // namespace mivo::adapters
