// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "drawing/text/Characters.h"

namespace mivo::drawing {

/// How wide a text is in one font, in points, as the front-end that paints it measures it.
using TextWidth = std::function<double(std::string_view)>;

/// A font in which numbers are set.
struct NumberFace {
  TextWidth text;
  TextWidth digit;  ///< of one digit, without the letter spacing that `text` has
  Characters characters;
};

}  // namespace mivo::drawing
