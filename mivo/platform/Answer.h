// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <type_traits>
#include <utility>
#include <variant>

namespace mivo {

/// What a request came to that somebody else works on: a value, or the error that kept it from one.
///
///     session.data(url, stop, [](const Answer<std::string>& answer) {
///       try {
///         show(answer.value());
///       } catch (const URLError& error) {
///         say(error.what());
///       }
///     });
template <class Value>
class Answer {
 public:
  Answer(Value found) : content{std::move(found)} {}
  Answer(std::exception_ptr error) : content{std::move(error)} {}

  /// Throws the error where there is one.
  const Value& value() const {
    if (const auto* error = std::get_if<std::exception_ptr>(&content)) std::rethrow_exception(*error);
    return std::get<Value>(content);
  }

 private:
  std::variant<Value, std::exception_ptr> content;
};

/// Is called with the answer once, on any thread, and maybe before the call that asks returns.
template <class Value>
using Completion = std::function<void(Answer<Value>)>;

/// What `body` returns, or the exception that it throws.
template <class Body>
Answer<std::invoke_result_t<Body>> answerOf(Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    return std::current_exception();
  }
}

}  // namespace mivo
