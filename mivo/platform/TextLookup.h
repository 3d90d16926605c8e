// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "mivo/model/Translatable.h"

namespace mivo {

/// The message catalogue of the user's language. A key is the English text itself; a missing entry falls back to it.
/// Thread: any.
class TextLookup {
 public:
  virtual ~TextLookup() = default;

  /// The user's text for an English one. With a context, the entry made for it is preferred and the plain one is the
  /// fallback: languages that inflect "this {1}" by gender have an entry a range ("week", "month", "year").
  virtual std::string text(std::string_view key, std::string_view context = {}) const = 0;

  /// The same for a text that depends on a count: `one` and `many` are the English forms.
  virtual std::string plural(std::string_view one, std::string_view many, std::int64_t count) const = 0;
};

/// Puts the arguments into the numbered places {1}, {2}, ... of a template; a place without an argument stays as it is.
std::string filledIn(std::string_view pattern, std::initializer_list<std::string_view> arguments);

}  // namespace mivo
