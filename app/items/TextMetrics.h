// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

#include <string_view>

#include "drawing/text/NumberLayout.h"

namespace mivo::app {

inline QString qText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline drawing::TextWidth widthIn(const QFont& font) {
  return [metrics = QFontMetricsF{font}](std::string_view text) { return metrics.horizontalAdvance(qText(text)); };
}

inline drawing::NumberFace faceOf(const QFont& font) {
  // Qt leaves the letter spacing out where it is asked for a single character.
  const auto digit = [metrics = QFontMetricsF{font}](std::string_view text) {
    return metrics.horizontalAdvance(qText(text).front());
  };
  return {widthIn(font), digit};
}

/// How wide a text with even digits is.
inline drawing::TextWidth numberWidthIn(const QFont& font) {
  return [face = faceOf(font)](std::string_view text) { return drawing::evenDigits(text, face).width; };
}

}  // namespace mivo::app
