// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace mivo::cli {

/// What a piece of text is. The colours are of the terminal's own palette, so that they suit its background.
enum class Ink {
  plain,
  strong,
  faint,
  warning,
  fasting,
  eating,
  weight,
  anabolic,
  catabolic,
  fatBurning,
  ketosis,
  deepKetosis
};

/// Puts colours around texts, or leaves them as they are. Colour only underlines what the words say anyway.
class Paint {
 public:
  explicit Paint(bool withColour) : isColoured{withColour} {}

  /// Colours on a terminal that shows them, unless NO_COLOR is set and not empty.
  static Paint forStandardOutput();

  std::string operator()(Ink ink, std::string_view text) const;

 private:
  bool isColoured;
};

}  // namespace mivo::cli
