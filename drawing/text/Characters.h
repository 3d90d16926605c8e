// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::drawing {

/// What a character is by Unicode's general categories: a blank, a letter or a mark on one, a decimal digit, a
/// punctuation mark, or anything else.
enum class CharacterKind { blank, letter, digit, punctuation, other };

struct Character {
  std::string text;  ///< in UTF-8
  CharacterKind kind = CharacterKind::other;
  int digit = 0;  ///< 0 to 9 where it is one
};

/// The characters of a text, as the front-end that paints it tells them apart; bytes that are none may be left out.
using Characters = std::function<std::vector<Character>(std::string_view)>;

}  // namespace mivo::drawing
