// SPDX-License-Identifier: MIT
#include "host/text/Utf8Pieces.h"

#include <utility>

#include "host/text/Utf8.h"

namespace mivo::host {
namespace {

// A character beyond U+FFFF is two units.
constexpr bool isLead(std::uint32_t unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool isTrail(std::uint32_t unit) { return (unit & 0xFC00) == 0xDC00; }

std::uint32_t supplementary(std::uint32_t lead, std::uint32_t trail) {
  return 0x10000 + ((lead & 0x3FF) << 10 | (trail & 0x3FF));
}

}  // namespace

std::optional<std::string_view> Utf8Pieces::feed(std::string_view bytes) {
  constexpr std::size_t longestMark = 3;
  if (form == Form::utf8) return bytes;
  if (form == Form::unknown) {
    held += bytes;
    return held.size() < longestMark ? std::string_view{} : begin(false);
  }
  held.clear();
  return decode(bytes) ? std::optional<std::string_view>{held} : std::nullopt;
}

std::optional<std::string_view> Utf8Pieces::finish() {
  if (form == Form::unknown) return begin(true);
  if (half || lead != 0) return std::nullopt;
  return std::string_view{};
}

std::optional<std::string_view> Utf8Pieces::begin(bool isWhole) {
  const std::string_view text = held;
  const bool isLittleEndian = text.starts_with("\xFF\xFE");
  if (!isLittleEndian && !text.starts_with("\xFE\xFF")) {
    form = Form::utf8;
    return text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text;
  }
  form = isLittleEndian ? Form::littleEndian : Form::bigEndian;
  const std::string bytes = std::exchange(held, {});
  if (!decode(std::string_view{bytes}.substr(2)) || (isWhole && half)) return std::nullopt;
  return held;
}

bool Utf8Pieces::decode(std::string_view bytes) {
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (!half) {
      half = byte;
      continue;
    }
    const unsigned first = *std::exchange(half, std::nullopt);
    const std::uint32_t unit = form == Form::littleEndian ? first | unsigned{byte} << 8 : first << 8 | byte;
    const std::uint32_t before = std::exchange(lead, 0);
    if (before != 0) {
      if (!isTrail(unit)) return false;
      appendCharacter(held, supplementary(before, unit));
    } else if (isLead(unit)) {
      lead = unit;
    } else if (isTrail(unit)) {
      return false;
    } else {
      appendCharacter(held, unit);
    }
  }
  return true;
}

}  // namespace mivo::host
