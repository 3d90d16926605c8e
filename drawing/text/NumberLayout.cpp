// SPDX-License-Identifier: MIT
#include "drawing/text/NumberLayout.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>

namespace mivo::drawing {
namespace {

constexpr double gapBeforeOneLetter = 0.08, gapBeforeWord = 0.26, gapBeforeNumber = 0.22;

std::string utf8(UChar32 character) {
  std::string text;
  return icu::UnicodeString{character}.toUTF8String(text);
}

/// Calls `visit` with each character; a byte that is none counts as U+FFFD.
template <class Visit>
void forEachCharacter(std::string_view text, Visit visit) {
  const auto all = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  for (std::int32_t at = 0; at < all.length(); at = all.moveIndex32(at, 1)) visit(all.char32At(at));
}

bool isLetter(UChar32 character) {
  return u_isalpha(character) || u_charType(character) == U_NON_SPACING_MARK ||
         u_charType(character) == U_COMBINING_SPACING_MARK || u_charType(character) == U_ENCLOSING_MARK;
}

// A blank ends a run; the gap that it stands for comes from the type, not from the blank.
std::vector<NumberRun> split(std::string_view text) {
  std::vector<NumberRun> runs;
  bool isFresh = true;
  forEachCharacter(text, [&](UChar32 character) {
    if (u_isUWhiteSpace(character)) {
      isFresh = true;
      return;
    }
    // A point or comma behind letters is theirs: "16 Std., 38 Min."
    const bool isUnit = isLetter(character) || (!isFresh && u_ispunct(character) && runs.back().isUnit);
    if (isFresh || runs.back().isUnit != isUnit) runs.push_back({{}, isUnit, 0, 0});
    runs.back().text += utf8(character);
    isFresh = false;
  });
  return runs;
}

UChar32 zeroOf(std::string_view text) {
  UChar32 zero = 0;
  forEachCharacter(text, [&](UChar32 character) {
    if (zero == 0 && u_isdigit(character)) zero = character - u_charDigitValue(character);
  });
  return zero == 0 ? U'0' : zero;
}

double digitCell(UChar32 zero, const TextWidth& digitWidth) {
  double widest = 0;
  for (UChar32 digit = 0; digit < 10; ++digit) widest = std::max(widest, digitWidth(utf8(zero + digit)));
  return widest;
}

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  forEachCharacter(text, [&](UChar32) { ++count; });
  return count;
}

double gapBefore(const NumberRun& run, double unitSize) {
  if (!run.isUnit) return gapBeforeNumber * unitSize;
  return (characterCount(run.text) == 1 ? gapBeforeOneLetter : gapBeforeWord) * unitSize;
}

double widthOf(const NumberRun& run, const NumberStyle& style) {
  if (run.isUnit) return style.unit(run.text);
  return style.hasEvenDigits ? evenDigits(run.text, style.number).width : style.number.text(run.text);
}

}  // namespace

EvenDigits evenDigits(std::string_view text, const NumberFace& face) {
  EvenDigits set;
  const double cell = digitCell(zeroOf(text), face.digit);
  std::vector<bool> areDigits;
  forEachCharacter(text, [&](UChar32 character) {
    const bool isDigit = u_isdigit(character);
    if (areDigits.empty() || isDigit || areDigits.back()) {
      set.parts.push_back({utf8(character), 0});
      areDigits.push_back(isDigit);
    } else {
      set.parts.back().text += utf8(character);
    }
  });
  for (std::size_t part = 0; part < set.parts.size(); ++part) {
    const double advance = face.text(set.parts[part].text);
    const double room = areDigits[part] ? cell : advance;
    set.parts[part].x = set.width + (room - advance) / 2;
    set.width += room;
  }
  return set;
}

NumberLayout layOut(std::string_view text, const NumberStyle& style) {
  NumberLayout layout{split(text), 0};
  bool isFirst = true;
  for (NumberRun& run : layout.runs) {
    if (!isFirst) layout.width += gapBefore(run, style.unitSize);
    isFirst = false;
    run.x = layout.width;
    run.width = widthOf(run, style);
    layout.width += run.width;
  }
  return layout;
}

}  // namespace mivo::drawing
