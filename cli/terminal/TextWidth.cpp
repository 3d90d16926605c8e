// SPDX-License-Identifier: MIT
#include "cli/terminal/TextWidth.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstddef>
#include <memory>

#include "host/text/Utf8.h"

namespace mivo::cli {
namespace {

int columnsOf(std::int32_t character) {
  if (character < 0) return 1;  // terminals show a replacement
  const auto type = u_charType(character);
  if (type == U_NON_SPACING_MARK || type == U_ENCLOSING_MARK || type == U_FORMAT_CHAR) return 0;
  const int syllable = u_getIntPropertyValue(character, UCHAR_HANGUL_SYLLABLE_TYPE);
  if (syllable == U_HST_VOWEL_JAMO || syllable == U_HST_TRAILING_JAMO) return 0;  // joined to the letter before it
  const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
  return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

std::string blanks(int count) { return std::string(static_cast<std::size_t>(std::max(count, 0)), ' '); }

std::string withoutEndBlanks(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

/// The pieces between which a line may end.
std::vector<std::string> pieces(std::string_view text) {
  const auto whole =
      icu::UnicodeString::fromUTF8(icu::StringPiece{text.data(), static_cast<std::int32_t>(text.size())});
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> breaks{
      icu::BreakIterator::createLineInstance(icu::Locale::getRoot(), status)};
  if (U_FAILURE(status)) return {std::string{text}};
  breaks->setText(whole);
  std::vector<std::string> result;
  for (std::int32_t from = breaks->first(), to = breaks->next(); to != icu::BreakIterator::DONE; to = breaks->next()) {
    whole.tempSubStringBetween(from, to).toUTF8String(result.emplace_back());
    from = to;
  }
  return result;
}

}  // namespace

int columns(std::string_view text) {
  int sum = 0;
  for (std::size_t next = 0; next < text.size();) sum += columnsOf(host::takeCharacter(text, next));
  return sum;
}

std::string padded(std::string_view text, int width) { return std::string{text} + blanks(width - columns(text)); }

std::string paddedLeft(std::string_view text, int width) { return blanks(width - columns(text)) + std::string{text}; }

std::vector<std::string> wrapped(std::string_view text, int width) {
  if (columns(text) <= width) return {std::string{text}};
  std::vector<std::string> lines;
  std::string line;
  for (const auto& piece : pieces(text)) {
    if (!line.empty() && columns(withoutEndBlanks(line + piece)) > width) {
      lines.push_back(withoutEndBlanks(line));
      line.clear();
    }
    line += piece;
  }
  lines.push_back(withoutEndBlanks(line));
  return lines;
}

}  // namespace mivo::cli
