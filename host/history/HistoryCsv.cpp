// SPDX-License-Identifier: MIT
#include "host/history/HistoryCsv.h"

#include <array>
#include <charconv>
#include <string_view>

#include "host/dates/DateText.h"

namespace mivo::host {
namespace {

void append(std::string& out, double number) {
  std::array<char, 32> text;
  out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr);
}

/// In quotes where it could be read as something else: readers drop blanks around a field without.
void appendText(std::string& out, std::string_view text) {
  constexpr std::string_view special = ",;\t\"\r\n ";
  if (text.find_first_of(special) == std::string_view::npos) {
    out += text;
    return;
  }
  out += '"';
  for (const char c : text) {
    if (c == '"') out += '"';
    out += c;
  }
  out += '"';
}

}  // namespace

std::string writeFastsCsv(std::span<const FastRecord> fasts) {
  std::string out = "start,end,goal_hours,note\n";
  Rfc3339 date;
  for (const auto& [fast, note] : fasts) {
    out += date.write(fast.start);
    out += ',';
    if (fast.finished) out += date.write(fast.finished->end);
    out += ',';
    append(out, static_cast<double>(fast.goalSeconds) / secondsPerHour);
    out += ',';
    appendText(out, note);
    out += '\n';
  }
  return out;
}

std::string writeWeightsCsv(std::span<const BodyWeightSample> weights) {
  std::string out = "date,weight_kg\n";
  Rfc3339 date;
  for (const auto& [id, when, weightInKg] : weights) {
    out += date.write(when);
    out += ',';
    append(out, weightInKg);
    out += '\n';
  }
  return out;
}

}  // namespace mivo::host
