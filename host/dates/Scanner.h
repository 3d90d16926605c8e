// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string_view>

namespace mivo::host {

/// Takes the front of a text, piece by piece. A copy tries what may not be there.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest{text} {}

  bool atEnd() const { return rest.empty(); }
  std::size_t size() const { return rest.size(); }

  template <class... Characters>
  bool take(Characters... anyOf) {
    if (rest.empty() || ((rest.front() != anyOf) && ...)) return false;
    rest.remove_prefix(1);
    return true;
  }

  /// Exactly `count` digits, as a number.
  template <std::size_t count>
  std::optional<unsigned> number() {
    if (rest.size() < count) return std::nullopt;
    unsigned result = 0;
    bool isNumber = true;
    for (std::size_t index = 0; index < count; ++index) {
      const unsigned digit = static_cast<unsigned char>(rest[index]) - unsigned{'0'};
      isNumber &= digit <= 9;
      result = result * 10 + digit;
    }
    if (!isNumber) return std::nullopt;
    rest.remove_prefix(count);
    return result;
  }

  std::string_view digits() {
    const std::size_t count = std::min(rest.find_first_not_of("0123456789"), rest.size());
    const std::string_view result = rest.substr(0, count);
    rest.remove_prefix(count);
    return result;
  }

  /// Blanks, the ones that keep words together too; whether there were any.
  bool blanks() {
    const std::size_t before = rest.size();
    for (bool isBlank = true; isBlank;) {
      isBlank = false;
      for (const std::string_view blank : {" ", "\t", "\u00A0", "\u202F"}) {
        if (!rest.starts_with(blank)) continue;
        rest.remove_prefix(blank.size());
        isBlank = true;
      }
    }
    return rest.size() < before;
  }

  /// Letters of any script, and the points and apostrophes inside or behind them.
  std::string_view word() {
    const auto isLetter = [](char c) {
      return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
    };
    if (!isLetter(front()) || rest.starts_with("\u00A0") || rest.starts_with("\u202F")) return {};
    std::size_t count = 0;
    while (count < rest.size() && (isLetter(rest[count]) || rest[count] == '.' || rest[count] == '\'') &&
           !rest.substr(count).starts_with("\u00A0") && !rest.substr(count).starts_with("\u202F"))
      ++count;
    const std::string_view result = rest.substr(0, count);
    rest.remove_prefix(count);
    return result;
  }

  char front() const { return rest.empty() ? '\0' : rest.front(); }

 private:
  std::string_view rest;
};

/// `Z`, `+01:00`, `+0100` or `+01`.
inline std::optional<std::chrono::seconds> scanOffset(Scanner& scanner) {
  if (scanner.take('Z', 'z')) return std::chrono::seconds{0};
  const bool isWest = scanner.front() == '-';
  if (!scanner.take('+', '-')) return std::nullopt;
  const auto hour = scanner.number<2>();
  if (!hour || *hour > 23) return std::nullopt;
  std::optional<unsigned> minute{0};
  if (scanner.take(':') || !scanner.atEnd()) minute = scanner.number<2>();
  if (!minute || *minute > 59) return std::nullopt;
  const std::chrono::seconds east = std::chrono::hours{*hour} + std::chrono::minutes{*minute};
  return isWest ? -east : east;
}

}  // namespace mivo::host
