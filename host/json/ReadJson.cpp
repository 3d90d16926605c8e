// SPDX-License-Identifier: MIT
#include "host/json/ReadJson.h"

#include <algorithm>

#include "adapters/json/NlohmannDecoder.h"
#include "host/text/BadRecord.h"

namespace mivo::host {

std::string describe(const JsonFault& fault) {
  return fault.path.empty() ? fault.reason : fault.path + ": " + fault.reason;
}

JsonRead<JSONValue> parseJson(std::string_view text) {
  if (text.size() > longestJson)
    return tl::unexpected{JsonFault{{}, "expected at most " + std::to_string(longestJson) + " bytes of JSON"}};
  try {
    return adapters::NlohmannDecoder{}.decoded(text);
  } catch (const DecodingError& error) {
    return tl::unexpected{JsonFault{{}, error.what()}};
  }
}

bool expectedInJson(std::string_view what, JsonFault& fault) {
  fault.reason = "expected ";
  fault.reason += what;
  return false;
}

bool within(std::string_view name, JsonFault& fault) {
  const bool isJoined = fault.path.empty() || fault.path.front() == '[';
  fault.path.insert(0, isJoined ? "" : ".").insert(0, name);
  return false;
}

bool within(std::size_t place, JsonFault& fault) { return within('[' + std::to_string(place) + ']', fault); }

template <>
std::optional<bool> readValue<bool>(const JSONValue& json, JsonFault& fault) {
  if (const auto* const flag = std::get_if<bool>(&json.content)) return *flag;
  expectedInJson("true or false", fault);
  return std::nullopt;
}

template <>
std::optional<double> readValue<double>(const JSONValue& json, JsonFault& fault) {
  if (const auto* const whole = std::get_if<std::int64_t>(&json.content)) return static_cast<double>(*whole);
  if (const auto* const number = std::get_if<double>(&json.content)) return *number;
  expectedInJson("a number", fault);
  return std::nullopt;
}

template <>
std::optional<std::string> readValue<std::string>(const JSONValue& json, JsonFault& fault) {
  if (json.text()) return *json.text();
  expectedInJson("a text", fault);
  return std::nullopt;
}

template <>
std::optional<Date> readValue<Date>(const JSONValue& json, JsonFault& fault) {
  const auto seconds = readValue<double>(json, fault);
  if (!seconds) return std::nullopt;
  const Date date = dateSince1970(*seconds);
  if (isRepresentable(date)) return date;
  expectedInJson("seconds since 1970 of a date in the years 1 to 9999", fault);
  return std::nullopt;
}

template <>
std::optional<UUID> readValue<UUID>(const JSONValue& json, JsonFault& fault) {
  const auto id = json.text() ? parseUUID(*json.text()) : std::nullopt;
  if (!id) expectedInJson("a UUID", fault);
  return id;
}

std::optional<std::int64_t> wholeIn(std::int64_t least, std::int64_t most, const JSONValue& json, JsonFault& fault) {
  const auto* const whole = std::get_if<std::int64_t>(&json.content);
  if (whole && *whole >= least && *whole <= most) return *whole;
  expectedInJson("a whole number from " + std::to_string(least) + " to " + std::to_string(most), fault);
  return std::nullopt;
}

std::optional<std::size_t> placeOfName(std::span<const std::string_view> names, const JSONValue& json,
                                       JsonFault& fault) {
  std::string all;
  for (std::size_t place = 0; place < names.size(); ++place) {
    if (names[place].empty()) continue;
    if (json.text() && *json.text() == names[place]) return place;
    all += all.empty() ? "one of \"" : ", \"";
    all += names[place];
    all += '"';
  }
  expectedInJson(all, fault);
  return std::nullopt;
}

JsonFieldReader::JsonFieldReader(const JSONValue& json, JsonFault& given)
    : members{json.object()}, fault{given}, isAllWell{members || expectedInJson("an object", given)} {}

const JSONValue* JsonFieldReader::field(std::string_view name) {
  ++count;
  if (!isAllWell) return nullptr;
  const auto found = std::ranges::find(*members, name, &JSONValue::Member::name);
  if (found != members->end()) return &found->value;
  read(name, expectedInJson("this field", fault));
  return nullptr;
}

bool JsonFieldReader::end(std::string_view record) {
  if (!isAllWell || members->size() == count) return isAllWell;
  return expectedInJson("each field of " + std::string{record} + " once, and no other", fault);
}

const JSONValue::Array* elementsOf(const JSONValue& json, JsonFault& fault) {
  if (!json.array()) expectedInJson("a list", fault);
  return json.array();
}

const JSONValue::Array* pairOf(const JSONValue& json, JsonFault& fault) {
  const auto* const two = json.array();
  if (two && two->size() == 2) return two;
  expectedInJson("a list of two", fault);
  return nullptr;
}

NamedCase namedCase(const JSONValue& json) {
  if (const std::string* name = json.text()) return {*name};
  const auto* const members = json.object();
  if (!members || members->size() != 1) return {};
  return {members->front().name, &members->front().value};
}

std::optional<std::size_t> placeOfCase(std::span<const std::string_view> names, const NamedCase& given,
                                       JsonFault& fault) {
  const auto found = std::ranges::find(names, given.name);
  if (given.name.empty()) {
    expectedInJson("the name of an action, alone or with its value", fault);
  } else if (found == names.end()) {
    expectedInJson("an action that a person can take", fault);
    within(quotable(given.name), fault);
  } else {
    return static_cast<std::size_t>(found - names.begin());
  }
  return std::nullopt;
}

bool standsAlone(const NamedCase& given, JsonFault& fault) {
  return !given.value || expectedInJson("this name alone", fault);
}

bool hasValue(const NamedCase& given, JsonFault& fault) {
  return given.value || expectedInJson("an object with a value of this name", fault);
}

}  // namespace mivo::host
