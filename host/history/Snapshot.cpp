// SPDX-License-Identifier: MIT
#include "host/history/Snapshot.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>

#include "host/dates/DateText.h"
#include "host/history/FieldRules.h"
#include "mivo/model/DecimalNumber.h"
#include "mivo/model/UUID.h"

namespace mivo::host {
namespace {

enum class Key { version, fasts, weights, settings, id, start, end, goalSeconds, note, date, weightInKg, setting };

constexpr std::string_view expectedSetting = "expected a text of at most 1000 bytes, a number, true or false";
constexpr std::size_t longestSettingInBytes = 1000, mostSettings = 1000;

struct KeyRule {
  Key key;
  std::string_view name, expected;
};

constexpr std::array<KeyRule, 12> keyRules{{{Key::version, "version", "expected 1"},
                                            {Key::fasts, "fasts", "expected a list"},
                                            {Key::weights, "weights", "expected a list"},
                                            {Key::settings, "settings", "expected an object"},
                                            {Key::id, "id", "expected a UUID in quotes"},
                                            {Key::start, "start", expectedDate},
                                            {Key::end, "end", expectedDate},
                                            {Key::goalSeconds, "goalSeconds", "expected whole seconds, 0 or more"},
                                            {Key::note, "note", expectedNote},
                                            {Key::date, "date", expectedDate},
                                            {Key::weightInKg, "weightInKg", expectedWeight},
                                            {Key::setting, "", expectedSetting}}};

constexpr const KeyRule& rule(Key key) { return keyRules[static_cast<std::size_t>(key)]; }

constexpr std::string_view delimiters = " \t\r\n,:[]{}";

enum class Place { outside, snapshot, fasts, fast, weights, weight, settings };

struct PlaceRule {
  std::string_view list;      // the way to an object in it, "fasts" of "fasts[2]"
  std::string_view expected;  // what this place holds
  std::array<Key, 5> keys;
  std::size_t keyCount;
};

constexpr std::array<PlaceRule, 7> placeRules{
    {{"", "expected an object", {}, 0},
     {"",
      "expected the keys \"version\", \"fasts\", \"weights\", \"settings\"",
      {Key::version, Key::fasts, Key::weights, Key::settings},
      4},
     {"fasts", "expected an object", {}, 0},
     {"fasts",
      "expected the keys \"id\", \"start\", \"end\", \"goalSeconds\", \"note\"",
      {Key::id, Key::start, Key::end, Key::goalSeconds, Key::note},
      5},
     {"weights", "expected an object", {}, 0},
     {"weights", "expected the keys \"id\", \"date\", \"weightInKg\"", {Key::id, Key::date, Key::weightInKg}, 3},
     {"settings", "expected at most 1000 settings", {}, 0}}};

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

  /// Keeps the memory of the texts.
  void clear() {
    id.reset();
    hasEnd = false;
    goalSeconds = defaultGoalSeconds;
    note.clear();
  }
};

/// What a parser's error means in our words, where the place alone does not say it.
std::string_view expectedBy(rapidjson::ParseErrorCode code) {
  switch (code) {
    case rapidjson::kParseErrorDocumentRootNotSingular:
      return "expected the end of the file";
    case rapidjson::kParseErrorObjectMissName:
      return "expected a key in quotes";
    case rapidjson::kParseErrorObjectMissColon:
      return "expected a colon";
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
      return "expected a comma or '}'";
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
      return "expected a comma or ']'";
    default:
      return {};
  }
}

/// What is wrong inside quotes; nothing for any other error.
std::string_view badText(rapidjson::ParseErrorCode code, bool isEscape) {
  switch (code) {
    case rapidjson::kParseErrorStringInvalidEncoding:
      return "ill-formed UTF-8 byte";
    case rapidjson::kParseErrorStringEscapeInvalid:
      return isEscape ? "a backslash that escapes nothing" : "line breaks and other control characters must be escaped";
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
      return "\\u must be followed by four hexadecimal digits";
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
      return "one half of a surrogate pair";
    default:
      return {};
  }
}

/// What the parser calls, value by value; an answer of false stops it.
class SnapshotReader {
 public:
  SnapshotReader(std::string_view whole, const std::string& fileName, const UUIDGenerator& uuids)
      : text{whole}, reached{whole.data()}, file{fileName}, ids{uuids} {}

  tl::expected<History, BadRecord> read();

  std::vector<Setting> settings;

  /// How far the parser has come: behind the last character that it took.
  void reach(std::size_t offset) { reached = text.data() + offset; }

  bool null() { return pending == Key::end ? runningFast() : refuse("null"); }
  bool boolean(bool value) { return pending == Key::setting ? keepSetting(value) : refuse(value ? "true" : "false"); }
  bool number(std::string_view digits) {
    if (pending == Key::setting) return numericSetting(digits);
    if (pending == Key::weightInKg) return weighed(digits);
    if (pending == Key::version) return accept(digits == "1", digits);
    return accept(pending == Key::goalSeconds && wholeNumber(digits, fields.goalSeconds), digits);
  }
  bool string(std::string_view value) {
    if (pending == Key::id) return accept(fields.id = parseUUID(value), value);
    if (pending == Key::start || pending == Key::date) return dateInto(fields.start, value);
    if (pending == Key::end) return finishedFastEnd(value);
    if (pending == Key::setting && value.size() <= longestSettingInBytes) return keepSetting(std::string{value});
    if (pending != Key::note) return refuse(value);
    fields.note = value;
    return accept(isNote(value), value);
  }

  bool startObject() {
    if (place == Place::outside) return enter(Place::snapshot);
    if (place == Place::fasts) return enter(Place::fast);
    if (place == Place::weights) return enter(Place::weight);
    if (pending == Key::settings) return enterSettings();
    return refuse("{");
  }
  bool key(std::string_view name) {
    if (place == Place::settings) return settingNamed(name);
    const PlaceRule& here = rule(place);
    const auto keys = std::span{here.keys}.first(here.keyCount);
    const auto known = std::ranges::find(keys, name, [](Key key) { return rule(key).name; });
    if (known == keys.end()) return refuse(name);
    if (hasSeen(*known)) return fail(name, "expected each key once in an object");
    seen() |= bit(*known);
    pending = *known;
    return true;
  }
  bool endObject() {
    if (place == Place::fast) return leaveFast();
    if (place == Place::weight) return leaveWeight();
    if (place == Place::settings) return leaveSettings();
    if (!hasSeen(Key::version)) return missing(Key::version);
    if (!hasSeen(Key::fasts) && !hasSeen(Key::weights)) return missing(Key::fasts);
    place = Place::outside;
    return true;
  }
  bool startArray() {
    if (pending != Key::fasts && pending != Key::weights) return refuse("[");
    place = pending == Key::fasts ? Place::fasts : Place::weights;
    if (place == Place::fasts) history.fasts.reserve(fastsAtMost());
    return accept();
  }
  bool endArray() {
    place = Place::snapshot;
    return true;
  }
  void parseError(rapidjson::ParseErrorCode code, std::size_t at) {
    if (at == text.size()) {
      reach(at);
      fail(std::nullopt, expectedHere() + ", found the end of the file");
      return;
    }
    reach(at + 1);
    if (const auto cause = badText(code, text[at] == '\\'); !cause.empty()) {
      fail(std::nullopt, "expected a text as JSON has it: " + std::string{cause});
      return;
    }
    const bool isNumber =
        code == rapidjson::kParseErrorNumberMissFraction || code == rapidjson::kParseErrorNumberMissExponent;
    if (isNumber && isDelimiter(text[at])) --reached;  // the number was at fault, not what follows it
    const std::string_view expected = pending ? std::string_view{} : expectedBy(code);
    fail(tokenHere(), expected.empty() ? expectedHere() : std::string{expected});
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
    fields.clear();
    seenInRecord = 0;
    lineOfRecord = lineHere();
    return accept();
  }

  bool dateInto(Date& field, std::string_view value) {
    const auto dateText = parseDateText(value);
    const auto date = dateText ? instant(*dateText) : std::nullopt;
    if (date) field = *date;
    return accept(date.has_value(), value);
  }
  bool finishedFastEnd(std::string_view value) {
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
  bool weighed(std::string_view digits) {
    const auto number = readDecimalNumber(digits);
    fields.weightInKg = number.value_or(0);
    return accept(number && isBodyWeight(*number), digits);
  }
  static bool wholeNumber(std::string_view digits, std::int64_t& number) {
    const char* const begin = digits.data();
    const char* const end = begin + digits.size();
    const auto [stop, error] = std::from_chars(begin, end, number);
    return error == std::errc{} && stop == end && digits.front() != '-';
  }

  bool enterSettings() {
    place = Place::settings;
    return accept();
  }
  bool settingNamed(std::string_view name) {
    if (settings.size() == mostSettings) return refuse(name);
    if (std::ranges::find(settings, name, &Setting::key) != settings.end())
      return fail(name, "expected each key once in an object");
    settings.push_back({std::string{name}, {}});
    pending = Key::setting;
    return true;
  }
  bool keepSetting(UserDefaults::Value value) {
    settings.back().value = std::move(value);
    return accept();
  }
  bool numericSetting(std::string_view digits) {
    const char* const begin = digits.data();
    const char* const end = begin + digits.size();
    std::int64_t whole = 0;
    if (std::from_chars(begin, end, whole).ptr == end) return keepSetting(whole);
    const auto number = readDecimalNumber(digits);
    return number ? keepSetting(*number) : refuse(digits);
  }
  bool leaveSettings() {
    place = Place::snapshot;
    return true;
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
    if (place == Place::settings) return key == Key::setting ? way + '.' + quotable(settings.back().key) : way;
    const std::size_t index = way == "fasts" ? history.fasts.size() : history.weights.size();
    if (!way.empty()) way += '[' + std::to_string(index) + ']';
    if (!key) return way.empty() ? "snapshot" : way;
    return way + (way.empty() ? "" : ".") + std::string{rule(*key).name};
  }

  /// Room for the fasts, so that a long history is not copied as it grows: an object a fast, the shortest of 63
  /// characters.
  std::size_t fastsAtMost() const {
    return std::min(static_cast<std::size_t>(std::ranges::count(text, '{')), text.size() / 63);
  }

  const char* lastRead() const { return reached > text.data() ? reached - 1 : reached; }

  /// The line of the last token.
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

/// Hands what the parser finds over to the reader, and how far it has come. The names are the parser's.
class Events : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Events> {
 public:
  Events(SnapshotReader& snapshotReader, const rapidjson::MemoryStream& characters)
      : reader{snapshotReader}, stream{characters} {}

  bool Null() { return afterToken().null(); }
  bool Bool(bool value) { return afterToken().boolean(value); }
  bool RawNumber(const char* digits, std::size_t length, bool) { return afterToken().number({digits, length}); }
  bool String(const char* value, std::size_t length, bool) { return afterToken().string({value, length}); }
  bool Key(const char* name, std::size_t length, bool) { return afterToken().key({name, length}); }
  bool StartObject() { return atBracket().startObject(); }
  bool EndObject(std::size_t) { return atBracket().endObject(); }
  bool StartArray() { return atBracket().startArray(); }
  bool EndArray(std::size_t) { return atBracket().endArray(); }

 private:
  SnapshotReader& afterToken() { return reader.reach(stream.Tell()), reader; }
  SnapshotReader& atBracket() { return reader.reach(stream.Tell() + 1), reader; }  // which is taken after the call

  SnapshotReader& reader;
  const rapidjson::MemoryStream& stream;
};

tl::expected<History, BadRecord> SnapshotReader::read() {
  if (const std::size_t at = text.find('\0'); at != std::string_view::npos) {  // the parser takes it for the end
    reach(at + 1);
    fail(tokenHere(), "expected UTF-8 text");
    return tl::unexpected{std::move(*fault)};
  }
  constexpr unsigned options =
      rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
  rapidjson::MemoryStream stream{text.data(), text.size()};
  Events events{*this, stream};
  const auto result = rapidjson::Reader{}.Parse<options>(stream, events);
  if (result.IsError() && !fault) parseError(result.Code(), result.Offset());
  if (fault) return tl::unexpected{std::move(*fault)};
  sortByDate(history.weights);
  return std::move(history);
}

}  // namespace

tl::expected<History, BadRecord> readSnapshot(std::string_view text, const std::string& file, const UUIDGenerator& ids,
                                              std::vector<Setting>* settings) {
  SnapshotReader reader{text, file, ids};
  auto history = reader.read();
  if (history && settings) *settings = std::move(reader.settings);
  return history;
}

}  // namespace mivo::host
