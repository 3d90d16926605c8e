// SPDX-License-Identifier: MIT
#include "host/text/BadRecord.h"

#include <algorithm>
#include <array>

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

/// Letters that reorder or hide their neighbours on a terminal are as unfit as control characters: those that Unicode
/// calls controls, format characters, and separators of lines and paragraphs.
struct Unfit {
  std::int32_t first, last;
};
constexpr std::array unfit{
    Unfit{0x00, 0x1F},       Unfit{0x7F, 0x9F},       Unfit{0xAD, 0xAD},       Unfit{0x600, 0x605},
    Unfit{0x61C, 0x61C},     Unfit{0x6DD, 0x6DD},     Unfit{0x70F, 0x70F},     Unfit{0x890, 0x891},
    Unfit{0x8E2, 0x8E2},     Unfit{0x180E, 0x180E},   Unfit{0x200B, 0x200F},   Unfit{0x2028, 0x202E},
    Unfit{0x2060, 0x2064},   Unfit{0x2066, 0x206F},   Unfit{0xFEFF, 0xFEFF},   Unfit{0xFFF9, 0xFFFB},
    Unfit{0x110BD, 0x110BD}, Unfit{0x110CD, 0x110CD}, Unfit{0x13430, 0x1343F}, Unfit{0x1BCA0, 0x1BCA3},
    Unfit{0x1D173, 0x1D17A}, Unfit{0xE0001, 0xE0001}, Unfit{0xE0020, 0xE007F}};

bool isPlain(std::int32_t character) {
  if (character < 0) return false;
  const auto reached = std::ranges::lower_bound(unfit, character, {}, &Unfit::last);
  return reached == unfit.end() || character < reached->first;
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
