// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

#include <algorithm>
#include <string_view>
#include <vector>

#include "drawing/text/NumberLayout.h"

namespace mivo::app {

inline QString qText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline drawing::TextWidth widthIn(const QFont& font) {
  return [metrics = QFontMetricsF{font}](std::string_view text) { return metrics.horizontalAdvance(qText(text)); };
}

inline drawing::CharacterKind kindOf(char32_t character) {
  if (QChar::isSpace(character)) return drawing::CharacterKind::blank;
  if (QChar::isLetter(character) || QChar::isMark(character)) return drawing::CharacterKind::letter;
  if (QChar::category(character) == QChar::Number_DecimalDigit) return drawing::CharacterKind::digit;
  return QChar::isPunct(character) ? drawing::CharacterKind::punctuation : drawing::CharacterKind::other;
}

inline std::vector<drawing::Character> charactersOf(std::string_view text) {
  std::vector<drawing::Character> characters;
  for (const char32_t character : qText(text).toUcs4())
    characters.push_back(
        {QString::fromUcs4(&character, 1).toStdString(), kindOf(character), std::max(QChar::digitValue(character), 0)});
  return characters;
}

inline drawing::NumberFace faceOf(const QFont& font) {
  // Qt leaves the letter spacing out where it is asked for a single character.
  const auto digit = [metrics = QFontMetricsF{font}](std::string_view text) {
    return metrics.horizontalAdvance(qText(text).front());
  };
  return {widthIn(font), digit, charactersOf};
}

/// How wide a text with even digits is.
inline drawing::TextWidth numberWidthIn(const QFont& font) {
  return [face = faceOf(font)](std::string_view text) { return drawing::evenDigits(text, face).width; };
}

}  // namespace mivo::app
