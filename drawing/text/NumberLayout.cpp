// SPDX-License-Identifier: MIT
#include "drawing/text/NumberLayout.h"

#include <algorithm>

namespace mivo::drawing {
namespace {

constexpr double gapBeforeOneLetter = 0.08, gapBeforeWord = 0.26, gapBeforeNumber = 0.22;

// A blank ends a run; the gap that it stands for comes from the type, not from the blank.
std::vector<NumberRun> split(const std::vector<Character>& characters) {
  std::vector<NumberRun> runs;
  bool isFresh = true;
  for (const Character& character : characters) {
    if (character.kind == CharacterKind::blank) {
      isFresh = true;
      continue;
    }
    // A point or comma behind letters is theirs: "16 Std., 38 Min."
    const bool isOfUnit = !isFresh && character.kind == CharacterKind::punctuation && runs.back().isUnit;
    const bool isUnit = character.kind == CharacterKind::letter || isOfUnit;
    if (isFresh || runs.back().isUnit != isUnit) runs.push_back({{}, isUnit, 0, 0});
    runs.back().text += character.text;
    isFresh = false;
  }
  return runs;
}

// The ten digits of a script follow each other, and their UTF-8 differs in the last byte alone.
std::string digitLike(const Character& character, int digit) {
  std::string text = character.text;
  text.back() = static_cast<char>(text.back() - character.digit + digit);
  return text;
}

double digitCell(const std::vector<Character>& characters, const TextWidth& digitWidth) {
  const auto found = std::ranges::find(characters, CharacterKind::digit, &Character::kind);
  const Character like = found == characters.end() ? Character{"0", CharacterKind::digit, 0} : *found;
  double widest = 0;
  for (int digit = 0; digit < 10; ++digit) widest = std::max(widest, digitWidth(digitLike(like, digit)));
  return widest;
}

double gapBefore(const NumberRun& run, const NumberStyle& style) {
  if (!run.isUnit) return gapBeforeNumber * style.unitSize;
  const bool isOneLetter = style.number.characters(run.text).size() == 1;
  return (isOneLetter ? gapBeforeOneLetter : gapBeforeWord) * style.unitSize;
}

double widthOf(const NumberRun& run, const NumberStyle& style) {
  if (run.isUnit) return style.unit(run.text);
  return style.hasEvenDigits ? evenDigits(run.text, style.number).width : style.number.text(run.text);
}

}  // namespace

EvenDigits evenDigits(std::string_view text, const NumberFace& face) {
  EvenDigits set;
  const std::vector<Character> characters = face.characters(text);
  const double cell = digitCell(characters, face.digit);
  std::vector<bool> areDigits;
  for (const Character& character : characters) {
    const bool isDigit = character.kind == CharacterKind::digit;
    if (areDigits.empty() || isDigit || areDigits.back()) {
      set.parts.push_back({character.text, 0});
      areDigits.push_back(isDigit);
    } else {
      set.parts.back().text += character.text;
    }
  }
  for (std::size_t part = 0; part < set.parts.size(); ++part) {
    const double advance = face.text(set.parts[part].text);
    const double room = areDigits[part] ? cell : advance;
    set.parts[part].x = set.width + (room - advance) / 2;
    set.width += room;
  }
  return set;
}

NumberLayout layOut(std::string_view text, const NumberStyle& style) {
  NumberLayout layout{split(style.number.characters(text)), 0};
  bool isFirst = true;
  for (NumberRun& run : layout.runs) {
    if (!isFirst) layout.width += gapBefore(run, style);
    isFirst = false;
    run.x = layout.width;
    run.width = widthOf(run, style);
    layout.width += run.width;
  }
  return layout;
}

}  // namespace mivo::drawing
