// SPDX-License-Identifier: MIT
#include "host/json/JsonWriter.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <utility>

namespace mivo::host {
namespace {

template <class Number>
void append(std::string& out, Number value) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  out.append(digits.data(), end);
}

}  // namespace

void JsonWriter::key(std::string_view name) {
  assert(!levels.empty() && !isAfterKey);
  separate();
  quote(name);
  out += ": ";
  isAfterKey = true;
}

void JsonWriter::string(std::string_view text) {
  beginValue();
  quote(text);
}

void JsonWriter::number(double value) {
  if (!std::isfinite(value)) return string(std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf");
  beginValue();
  append(out, value);
}

void JsonWriter::number(std::int64_t value) {
  beginValue();
  append(out, value);
}

void JsonWriter::boolean(bool value) {
  beginValue();
  out += value ? "true" : "false";
}

void JsonWriter::null() {
  beginValue();
  out += "null";
}

std::string JsonWriter::text() && {
  assert(levels.empty());
  if (!isForPage()) out += '\n';
  return std::move(out);
}

void JsonWriter::begin(char bracket, Layout layout) {
  beginValue();
  const bool isInLine = isForPage() || (!levels.empty() && levels.back().layout == Layout::line);
  levels.push_back({isInLine ? Layout::line : layout});
  out += bracket;
}

void JsonWriter::end(char bracket) {
  assert(!levels.empty() && !isAfterKey);
  const Level level = levels.back();
  levels.pop_back();
  if (level.layout == Layout::spread && !level.isEmpty) breakLine();
  out += bracket;
}

void JsonWriter::beginValue() {
  if (!std::exchange(isAfterKey, false) && !levels.empty()) separate();
}

void JsonWriter::separate() {
  const bool isFirst = std::exchange(levels.back().isEmpty, false);
  const bool isSpread = levels.back().layout == Layout::spread;
  if (!isFirst) out += isSpread ? "," : ", ";
  if (isSpread) breakLine();
}

void JsonWriter::breakLine() {
  out += '\n';
  out.append(2 * levels.size(), ' ');
}

void JsonWriter::quote(std::string_view text) {
  constexpr std::string_view hex = "0123456789abcdef";
  const auto isPlain = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 && byte != 0x7F && c != '"' && c != '\\';
  };
  out += '"';
  while (!text.empty()) {
    const auto special = std::ranges::find_if_not(text, isPlain);
    out.append(text.begin(), special);
    text = {special, text.end()};
    if (text.empty()) break;
    const char c = text.front();
    const auto byte = static_cast<unsigned char>(c);
    text.remove_prefix(1);
    out += '\\';
    if (c == '"' || c == '\\')
      out += c;
    else
      out.append("u00").append({hex[byte >> 4], hex[byte & 15]});
  }
  out += '"';
}

}  // namespace mivo::host
