// SPDX-License-Identifier: MIT
#include "host/text/Utf8.h"

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

namespace mivo::host {
namespace {

struct Appended {
  using Ch = char;
  void Put(char byte) { text += byte; }
  std::string& text;
};

}  // namespace

std::int32_t takeCharacter(std::string_view text, std::size_t& next) {
  rapidjson::MemoryStream bytes{text.data() + next, text.size() - next};
  unsigned character = 0;
  const bool isOne = rapidjson::UTF8<>::Decode(bytes, &character);
  next += isOne ? bytes.Tell() : 1;
  return isOne ? static_cast<std::int32_t>(character) : -1;
}

bool isUtf8(std::string_view text) {
  std::size_t next = 0;
  while (next < text.size())
    if (takeCharacter(text, next) < 0) return false;
  return true;
}

void appendCharacter(std::string& text, std::uint32_t character) {
  Appended appended{text};
  rapidjson::UTF8<>::Encode(appended, character);
}

}  // namespace mivo::host
