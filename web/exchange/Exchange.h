// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <tl/expected.hpp>
#include <utility>

// Texts are UTF-8. One that JavaScript gives comes as an address and a size; one that it answers with comes into a
// std::string, whose room it asks for with the exported function `room`. What is given back to it is an `Answer`.

namespace mivo::web {

/// JavaScript reads it where it lies: `exchange.mjs`.
struct Answer {
  const char* text;
  std::size_t size;
  bool isRefused;  ///< the text is a sentence that says why
};

/// A text, or a sentence that says why there is none. `std::string` may hold any bytes.
using Made = tl::expected<std::string, std::string>;

/// The answer lives until the next one is asked for.
const Answer* answer(Made made);

/// What `make` gives; an exception is a refusal.
template <class Make>
const Answer* answerOf(Make&& make) {
  try {
    return answer(std::forward<Make>(make)());
  } catch (const std::exception& error) {
    return answer(tl::unexpected{std::string{error.what()}});
  }
}

}  // namespace mivo::web
