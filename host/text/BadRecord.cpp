// SPDX-License-Identifier: MIT
#include "host/text/BadRecord.h"

#include <unicode/uchar.h>

#include "host/text/Utf8.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {
namespace {

constexpr std::size_t longestQuote = 40;

void appendHex(std::string& result, unsigned char byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  result += "\\x";
  result += digits[byte >> 4];
  result += digits[byte & 15];
}

/// Letters that reorder or hide their neighbours on a terminal are as unfit as control characters.
bool isPlain(std::int32_t character) {
  if (character < 0) return false;
  const auto type = u_charType(character);
  return type != U_CONTROL_CHAR && type != U_FORMAT_CHAR && type != U_LINE_SEPARATOR && type != U_PARAGRAPH_SEPARATOR;
}

}  // namespace

std::string quotable(std::string_view text) {
  std::string result;
  std::size_t next = 0;
  while (next < text.size()) {
    const std::size_t from = next;
    const std::int32_t character = takeCharacter(text, next);
    if (next > longestQuote) return result + "...";
    if (isPlain(character))
      result += text.substr(from, next - from);
    else
      for (const char byte : text.substr(from, next - from)) appendHex(result, static_cast<unsigned char>(byte));
  }
  return result;
}

std::string describe(const BadRecord& bad) {
  std::string sentence = bad.file;
  if (bad.line > 0) sentence += ':' + std::to_string(bad.line);
  if (!bad.column.empty()) sentence += ": " + bad.column;
  sentence += ": " + (bad.either ? filledIn(bad.reason, {bad.either->first, bad.either->second}) : bad.reason);
  if (bad.value) sentence += ", found \"" + *bad.value + '"';
  return sentence;
}

}  // namespace mivo::host
