// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/text/TextWidth.h"

namespace mivo::drawing {

/// A part of a text, and where it begins, in points from the text's left edge.
struct PlacedText {
  std::string text;
  double x = 0;
  bool operator==(const PlacedText&) const = default;
};

/// A text whose digits stand centred in cells as wide as the widest digit, so that a running number does not jump.
struct EvenDigits {
  std::vector<PlacedText> parts;  ///< each digit alone, and what stands between digits whole: letters may join
  double width = 0;
  bool operator==(const EvenDigits&) const = default;
};

/// The cell is as wide as the widest of the digits that the text is written in: "0" to "9" where there are none.
EvenDigits evenDigits(std::string_view text, const NumberFace& face);

/// One stretch of a number with units: the digits or the letters of "16h 34m", or "72.4 kg".
struct NumberRun {
  std::string text;
  bool isUnit = false;
  double x = 0;      ///< points from the number's left edge
  double width = 0;  ///< points
  bool operator==(const NumberRun&) const = default;
};

/// How a finished text of numbers and units is set: digits large, letters smaller, all on one baseline.
struct NumberStyle {
  NumberFace number;
  TextWidth unit;
  double unitSize = 0;  ///< of the units' type, in points
  bool hasEvenDigits = false;
};

struct NumberLayout {
  std::vector<NumberRun> runs;
  double width = 0;
  bool operator==(const NumberLayout&) const = default;
};

/// Splits a text into numbers and units and places them; gaps depend on the unit's size: 0.08 of it before a one-letter
/// unit, 0.26 before a word, 0.22 before the next number. It reads left to right in every script.
NumberLayout layOut(std::string_view text, const NumberStyle& style);

}  // namespace mivo::drawing
