// SPDX-License-Identifier: MIT
#include "host/text/Utf8.h"

#include <unicode/utf8.h>

namespace mivo::host {

std::int32_t takeCharacter(std::string_view text, std::size_t& next) {
  UChar32 character = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // inside ICU's macro
  U8_NEXT(text.data(), next, text.size(), character);
#pragma GCC diagnostic pop
  return character;
}

bool isUtf8(std::string_view text) {
  std::size_t next = 0;
  while (next < text.size())
    if (takeCharacter(text, next) < 0) return false;
  return true;
}

}  // namespace mivo::host
