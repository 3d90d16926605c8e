// SPDX-License-Identifier: MIT
#include "host/history/Snapshot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <utility>

#include "host/dates/DateText.h"
#include "host/history/FieldRules.h"
#include "mivo/model/UUID.h"

namespace mivo::host {
namespace {

using Json = nlohmann::json;

/// Walks a text and tells how far the parser has come: the parser's callbacks do not say where their value stands.
class TrackedCharacter {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  TrackedCharacter(const char* first, const char*& reached) : place{first}, furthest{&reached} {}

  reference operator*() const { return *place; }
  TrackedCharacter& operator++() {
    *furthest = ++place;
    return *this;
  }
  TrackedCharacter operator++(int) {
    const TrackedCharacter before = *this;
    ++*this;
    return before;
  }
  bool operator==(const TrackedCharacter& other) const { return place == other.place; }

 private:
  const char* place;
  const char** furthest;
};

enum class Key { version, fasts, weights, id, start, end, goalSeconds, note, date, weightInKg };

struct KeyRule {
  Key key;
  std::string_view name, expected;
};

constexpr std::array<KeyRule, 10> keyRules{{{Key::version, "version", "expected 1"},
                                            {Key::fasts, "fasts", "expected a list"},
                                            {Key::weights, "weights", "expected a list"},
                                            {Key::id, "id", "expected a UUID in quotes"},
                                            {Key::start, "start", expectedDate},
                                            {Key::end, "end", expectedDate},
                                            {Key::goalSeconds, "goalSeconds", "expected whole seconds, 0 or more"},
                                            {Key::note, "note", expectedNote},
                                            {Key::date, "date", expectedDate},
                                            {Key::weightInKg, "weightInKg", expectedWeight}}};

constexpr const KeyRule& rule(Key key) { return keyRules[static_cast<std::size_t>(key)]; }

constexpr std::string_view delimiters = " \t\r\n,:[]{}";

enum class Place { outside, snapshot, fasts, fast, weights, weight };

struct PlaceRule {
  std::string_view list;      // the way to an object in it, "fasts" of "fasts[2]"
  std::string_view expected;  // what this place holds
  std::array<Key, 5> keys;
  std::size_t keyCount;
};

constexpr std::array<PlaceRule, 6> placeRules{
    {{"", "expected an object", {}, 0},
     {"", "expected the keys \"version\", \"fasts\", \"weights\"", {Key::version, Key::fasts, Key::weights}, 3},
     {"fasts", "expected an object", {}, 0},
     {"fasts",
      "expected the keys \"id\", \"start\", \"end\", \"goalSeconds\", \"note\"",
      {Key::id, Key::start, Key::end, Key::goalSeconds, Key::note},
      5},
     {"weights", "expected an object", {}, 0},
     {"weights", "expected the keys \"id\", \"date\", \"weightInKg\"", {Key::id, Key::date, Key::weightInKg}, 3}}};

constexpr const PlaceRule& rule(Place place) { return placeRules[static_cast<std::size_t>(place)]; }

/// The fields of the record that is being read.
struct Fields {
  std::optional<UUID> id;
  Date start, end;  // `start` is a weight's date too
  bool hasEnd = false;
  std::int64_t endLine = 0;
  std::string endText;
  std::int64_t goalSeconds = defaultGoalSeconds;
  std::string note;
  double weightInKg = 0;
};

/// What the parser calls, value by value; an answer of false stops it.
class SnapshotReader {
 public:
  SnapshotReader(std::string_view whole, const std::string& fileName, const UUIDGenerator& uuids)
      : text{whole}, reached{whole.data()}, file{fileName}, ids{uuids} {}

  tl::expected<History, BadRecord> read() {
    if (const std::size_t at = text.find('\0'); at != std::string_view::npos) {  // the parser takes it for the end
      reached = text.data() + at + 1;
      fail(tokenHere(), "expected UTF-8 text");
      return tl::unexpected{std::move(*fault)};
    }
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    Json::sax_parse(TrackedCharacter{begin, reached}, TrackedCharacter{end, reached}, this);
    if (fault) return tl::unexpected{std::move(*fault)};
    sortByDate(history.weights);
    return std::move(history);
  }

  bool null() { return pending == Key::end ? runningFast() : refuse("null"); }
  bool boolean(bool value) { return refuse(value ? "true" : "false"); }
  bool number_integer(Json::number_integer_t value) { return refuse(std::to_string(value)); }
  bool number_unsigned(Json::number_unsigned_t value) {
    if (pending == Key::version && value == 1) return accept();
    if (pending == Key::weightInKg) return weighed(static_cast<double>(value), std::to_string(value));
    if (pending != Key::goalSeconds || !std::in_range<std::int64_t>(value)) return refuse(std::to_string(value));
    fields.goalSeconds = static_cast<std::int64_t>(value);
    return accept();
  }
  bool number_float(Json::number_float_t value, const std::string& digits) {
    return pending == Key::weightInKg ? weighed(value, digits) : refuse(digits);
  }
  bool string(const std::string& value) {
    if (pending == Key::id) return accept(fields.id = parseUUID(value), value);
    if (pending == Key::start || pending == Key::date) return dateInto(fields.start, value);
    if (pending == Key::end) return finishedFastEnd(value);
    if (pending != Key::note) return refuse(value);
    fields.note = value;
    return accept(isNote(value), value);
  }
  bool binary(const Json::binary_t&) { return refuse("binary"); }  // text holds none

  bool start_object(std::size_t) {
    if (place == Place::outside) return enter(Place::snapshot);
    if (place == Place::fasts) return enter(Place::fast);
    if (place == Place::weights) return enter(Place::weight);
    return refuse("{");
  }
  bool key(const std::string& name) {
    const PlaceRule& here = rule(place);
    const auto keys = std::span{here.keys}.first(here.keyCount);
    const auto known = std::ranges::find(keys, name, [](Key key) { return rule(key).name; });
    if (known == keys.end()) return refuse(name);
    if (hasSeen(*known)) return fail(name, "expected each key once in an object");
    seen() |= bit(*known);
    pending = *known;
    return true;
  }
  bool end_object() {
    if (place == Place::fast) return leaveFast();
    if (place == Place::weight) return leaveWeight();
    if (!hasSeen(Key::version)) return missing(Key::version);
    if (!hasSeen(Key::fasts) && !hasSeen(Key::weights)) return missing(Key::fasts);
    place = Place::outside;
    return true;
  }
  bool start_array(std::size_t) {
    if (pending != Key::fasts && pending != Key::weights) return refuse("[");
    place = pending == Key::fasts ? Place::fasts : Place::weights;
    return accept();
  }
  bool end_array() {
    place = Place::snapshot;
    return true;
  }
  bool parse_error(std::size_t charactersRead, const std::string&, const Json::exception& error) {
    const bool wasEndRead = charactersRead > text.size();  // the end counts as a character
    if (wasEndRead) return fail(std::nullopt, expectedHere() + ", found the end of the file");
    const std::string_view message = error.what();
    constexpr std::string_view badText = "invalid string: ";
    if (const std::size_t at = message.find(badText); at != std::string_view::npos) {
      const std::string_view cause = message.substr(at + badText.size());
      return fail(std::nullopt, "expected a text as JSON has it: " + std::string{cause.substr(0, cause.find(';'))});
    }
    constexpr std::string_view hint = "; expected ";
    const std::size_t at = message.find(hint);
    if (message.find("number") != std::string_view::npos && isDelimiter(*lastRead()))
      --reached;  // it was read one character past its end
    if (pending || at == std::string_view::npos) return fail(tokenHere(), expectedHere());
    return fail(tokenHere(), std::string{message.substr(at + 2)});
  }

 private:
  static constexpr unsigned bit(Key key) { return 1u << static_cast<unsigned>(key); }
  unsigned& seen() { return place == Place::snapshot ? seenInSnapshot : seenInRecord; }
  bool hasSeen(Key key) { return (seen() & bit(key)) != 0; }

  bool accept() {
    pending.reset();
    return true;
  }
  bool accept(bool isGood, std::string_view value) { return isGood ? accept() : refuse(value); }
  bool accept(const std::optional<UUID>& id, std::string_view value) { return accept(id.has_value(), value); }

  bool enter(Place next) {
    place = next;
    if (place == Place::snapshot) return accept();
    fields = Fields{};
    seenInRecord = 0;
    lineOfRecord = lineHere();
    return accept();
  }

  bool dateInto(Date& field, const std::string& value) {
    const auto dateText = parseDateText(value);
    const auto date = dateText ? instant(*dateText) : std::nullopt;
    if (date) field = *date;
    return accept(date.has_value(), value);
  }
  bool finishedFastEnd(const std::string& value) {
    fields.hasEnd = true;
    fields.endLine = lineHere();
    fields.endText = value;
    return dateInto(fields.end, value);
  }
  bool runningFast() {
    if (lineOfRunningFast) return fail("null", expectedEnd(*lineOfRunningFast));
    lineOfRunningFast = lineHere();
    return accept();
  }
  bool weighed(double weightInKg, const std::string& digits) {
    fields.weightInKg = weightInKg;
    return accept(isBodyWeight(weightInKg), digits);
  }

  bool leaveFast() {
    for (const Key key : {Key::start, Key::end})
      if (!hasSeen(key)) return missing(key);
    const UUID id = fields.id ? *fields.id : ids.next();
    if (fields.hasEnd && fields.end < fields.start)
      noteEndBeforeStart(history.endsBeforeStart, {file, fields.endLine, path(Key::end), quotable(fields.endText), {}});
    history.fasts.push_back({fields.hasEnd ? finishedFast(id, fields.start, fields.end, fields.goalSeconds)
                                           : ongoingFast(id, fields.start, fields.goalSeconds),
                             std::move(fields.note)});
    place = Place::fasts;
    return true;
  }
  bool leaveWeight() {
    for (const Key key : {Key::date, Key::weightInKg})
      if (!hasSeen(key)) return missing(key);
    history.weights.push_back({fields.id ? *fields.id : ids.next(), fields.start, fields.weightInKg});
    place = Place::weights;
    return true;
  }

  bool refuse(std::string_view value) { return fail(value, expectedHere()); }
  bool missing(Key key) {
    pending = key;
    const bool isOfRecord = place != Place::snapshot;
    return fail(std::nullopt, std::string{rule(key).expected} + ", found no such key", isOfRecord ? lineOfRecord : 0);
  }
  bool fail(std::optional<std::string_view> value, std::string reason, std::int64_t otherLine = 0) {
    fault = BadRecord{file, otherLine > 0 ? otherLine : lineHere(), path(pending),
                      value ? std::optional{quotable(*value)} : std::nullopt, std::move(reason)};
    return false;
  }
  std::string expectedHere() const { return std::string{pending ? rule(*pending).expected : rule(place).expected}; }

  /// "fasts[2].end"; "snapshot" where nothing has begun.
  std::string path(std::optional<Key> key) const {
    std::string way{rule(place).list};
    const std::size_t index = way == "fasts" ? history.fasts.size() : history.weights.size();
    if (!way.empty()) way += '[' + std::to_string(index) + ']';
    if (!key) return way.empty() ? "snapshot" : way;
    return way + (way.empty() ? "" : ".") + std::string{rule(*key).name};
  }

  const char* lastRead() const { return reached > text.data() ? reached - 1 : reached; }

  /// The line of the last token; the parser reads one character past a number, which may be a line's end.
  std::int64_t lineHere() {
    const char* const last = lastRead();
    if (last > counted) {
      line += std::count(counted, last, '\n');
      counted = last;
    }
    return line;
  }

  static bool isDelimiter(char c) { return delimiters.find(c) != std::string_view::npos; }

  /// The word around the place where the parser stopped.
  std::string_view tokenHere() const {
    const auto last = static_cast<std::size_t>(lastRead() - text.data());
    if (last < text.size() && isDelimiter(text[last])) return text.substr(last, 1);
    const std::size_t before = text.find_last_of(delimiters, last);
    const std::size_t from = before == std::string_view::npos ? 0 : before + 1;
    return text.substr(from, text.find_first_of(delimiters, last) - from);
  }

  std::string_view text;
  const char* reached;
  const char* counted = text.data();  // up to where line ends were counted, so that each is looked at once
  std::int64_t line = 1;
  const std::string& file;
  const UUIDGenerator& ids;

  Place place = Place::outside;
  std::optional<Key> pending;  // the key whose value is next
  unsigned seenInSnapshot = 0, seenInRecord = 0;
  Fields fields;
  std::int64_t lineOfRecord = 0;
  std::optional<std::int64_t> lineOfRunningFast;
  History history;
  std::optional<BadRecord> fault;
};

}  // namespace

tl::expected<History, BadRecord> readSnapshot(std::string_view text, const std::string& file,
                                              const UUIDGenerator& ids) {
  return SnapshotReader{text, file, ids}.read();
}

}  // namespace mivo::host
