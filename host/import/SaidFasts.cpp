// SPDX-License-Identifier: MIT
#include "host/import/SaidFasts.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "host/dates/NamedLength.h"
#include "host/history/FieldRules.h"
#include "host/history/RecordFault.h"

namespace mivo::host {
namespace {

constexpr std::string_view expectedFast =
    translatable("expected a start and an end, as in \"yesterday 20:00 - 12:00\" or \"yesterday 20:00, 16h\"");
constexpr std::string_view expectedEnd = translatable("expected an end, as in 12:00 or \"today 12:00\"");
constexpr std::string_view expectedPastStart = translatable("expected a start that has passed");
constexpr std::string_view expectedPastEnd = translatable("expected an end that has passed");

constexpr std::size_t longestLine = 200;  // bytes, more than two dates have in any language

/// Blanks of any width become those that dates are read with.
std::string withPlainBlanks(std::string_view line) {
  std::string result{line};
  for (const std::string_view blank : {"\u00A0", "\u202F", "\u2009"})
    for (auto at = result.find(blank); at != std::string::npos; at = result.find(blank, at))
      result.replace(at, blank.size(), " ");
  return result;
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool saysNothing(std::string_view line) {
  while (!line.empty()) {
    const std::size_t size = line.starts_with("–") || line.starts_with("—") ? 3 : 1;
    if (size == 1 && std::string_view{" \t\r-_=*"}.find(line.front()) == std::string_view::npos) return false;
    line.remove_prefix(size);
  }
  return true;
}

/// What stands behind "- ", "* ", "• ", "– ", "1. " or "1) "; the same text without one.
std::string_view behindListSign(std::string_view line) {
  std::string_view rest = line;
  for (const std::string_view sign : {"-", "*", "•", "–"})
    if (line.starts_with(sign)) rest = line.substr(sign.size());
  const std::size_t digits = std::min(line.find_first_not_of("0123456789"), line.size());
  if (digits > 0 && digits < line.size() && (line[digits] == '.' || line[digits] == ')'))
    rest = line.substr(digits + 1);
  return rest.starts_with(' ') || rest.starts_with('\t') ? trimmed(rest) : line;
}

/// Where a line may be cut into its start and its end.
struct Cut {
  std::size_t at, size;
  bool takesLength = false;  // behind a dash or a word "12h" is a time of day in some languages
};

std::vector<Cut> cutsOf(std::string_view line, const DateNames& names) {
  std::vector<Cut> cuts;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view rest = line.substr(at);
    if (rest.starts_with("–") || rest.starts_with("—")) {
      cuts.push_back({at, 3});
    } else if (rest.front() == '-') {
      cuts.push_back({at, 1});
    } else if (rest.front() == ',' || rest.front() == ';' || rest.front() == '\t') {
      cuts.push_back({at, 1, true});
    } else if (at > 0 && line[at - 1] == ' ') {
      const std::string_view word = rest.substr(0, rest.find(' '));
      if (std::ranges::find(names.untils, names.inSmallLetters(word)) != names.untils.end())
        cuts.push_back({at, word.size()});
    }
  }
  return cuts;
}

/// Reads one line after the other.
class Lines {
 public:
  Lines(const SaidFastsFrame& saidFrame, const UUIDGenerator& uuids, ImportedFile& into)
      : frame{saidFrame}, ids{uuids}, file{into} {}

  void read(std::string_view text, std::int64_t line);

 private:
  struct Span {
    Date start, end;
  };
  using Answer = tl::expected<Span, BadRecord>;

  tl::expected<Date, SpokenFault> date(std::string_view text, std::optional<Date> after) const {
    SpokenFrame dates = frame.dates;
    dates.after = after;
    return readSpokenDate(frame.names.inSmallLetters(text), frame.names, dates);
  }
  BadRecord refused(std::string_view reason, std::string_view value) const {
    return {.file = file.name, .value = quotable(value), .reason = std::string{reason}};
  }
  /// None, or two.
  BadRecord refused(std::string_view reason, std::string_view value, const SpokenFault& fault) const {
    if (!fault.readings) return refused(reason, value);
    BadRecord bad = refused(expectedOneOfTwo, value);
    const auto& zone = frame.dates.zone;
    bad.either.emplace(typedDate(fault.readings->first, zone), typedDate(fault.readings->second, zone));
    return bad;
  }
  void refuse(std::int64_t line, BadRecord bad) const {
    bad.line = line;
    file.refused.add(std::move(bad));
  }
  Answer cut(std::string_view line) const;
  Answer fast(std::string_view line) const;
  Answer past(std::string_view line, const Span& span) const;

  const SaidFastsFrame& frame;
  const UUIDGenerator& ids;
  ImportedFile& file;
};

/// Where a line is to be cut, only reading what stands on both sides tells. A line that is a date as a whole has its
/// offset behind the last dash, and no end.
Lines::Answer Lines::cut(std::string_view line) const {
  BadRecord bad = refused(expectedFast, line);
  if (date(line, {})) return tl::unexpected{std::move(bad)};
  for (const Cut& cut : cutsOf(line, frame.names)) {
    const std::string_view before = trimmed(line.substr(0, cut.at)), behind = trimmed(line.substr(cut.at + cut.size));
    const auto start = date(before, {});
    if (!start) {
      if (start.error().readings) bad = refused(expectedFast, before, start.error());
      continue;
    }
    const auto end = date(behind, *start);
    if (end) return past(line, {*start, *end});
    if (const auto seconds = cut.takesLength ? readNamedLength(frame.names.inSmallLetters(behind)) : std::nullopt)
      return past(line, {*start, *start + Duration{*seconds}});
    bad = refused(expectedEnd, behind, end.error());
  }
  return tl::unexpected{std::move(bad)};
}

Lines::Answer Lines::past(std::string_view line, const Span& span) const {
  const auto fault = recordFault({finishedFast({}, span.start, span.end, frame.goalSeconds), {}}, frame.dates.now);
  if (!fault) return span;
  const bool isStart = fault == RecordFault::startInFuture || fault == RecordFault::startOutOfRange;
  const bool isOrder = fault == RecordFault::endBeforeStart;
  return tl::unexpected{
      refused(isStart ? expectedPastStart : (isOrder ? expectedEndAfterStart : expectedPastEnd), line)};
}

/// "1. " may be the day of a date as well.
Lines::Answer Lines::fast(std::string_view line) const {
  Answer whole = cut(line);
  const std::string_view rest = behindListSign(line);
  return whole || rest == line ? whole : cut(rest);
}

void Lines::read(std::string_view text, std::int64_t line) {
  if (text.size() > longestLine && !saysNothing(text)) return refuse(line, refused(expectedFast, trimmed(text)));
  const std::string plain = withPlainBlanks(text);
  if (saysNothing(plain)) return;
  Answer answer = fast(trimmed(plain));
  if (!answer) return refuse(line, std::move(answer.error()));
  file.fasts.push_back({finishedFast(ids.next(), answer->start, answer->end, frame.goalSeconds), {}});
  file.fastLines.push_back(line);
}

}  // namespace

ImportedFile readSaidFasts(std::string name, std::string_view text, const SaidFastsFrame& frame,
                           const UUIDGenerator& ids) {
  ImportedFile file{.name = std::move(name), .kind = ImportKind::saidFasts};
  Lines lines{frame, ids, file};
  for (std::int64_t line = 1; !text.empty(); ++line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.read(text.substr(0, end), line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return file;
}

}  // namespace mivo::host
