// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "mivo/platform/Answer.h"
#include "mivo/platform/JSONValue.h"
#include "mivo/platform/StopToken.h"
#include "mivo/platform/URLSession.h"

namespace mivo {

/// What can be read from JSON: `static Type decoded(const JSONValue&)`, which throws DecodingError.
template <class Type>
concept JSONDecodable = requires(const JSONValue& value) {
  { Type::decoded(value) } -> std::same_as<Type>;
};

/// Loads a JSON text from an address and decodes it.
struct JSONDataFetcher {
  /// A fault that is seen before anything is asked.
  class Error : public std::runtime_error {
   public:
    enum Case { invalidURL };
    Error(Case errorCase, std::string_view url);
    Case errorCase;
  };

  /// With the URL session and the JSON decoder of the current dependencies, which are in force in `completion` too.
  /// The error is Error for what is no absolute URL (RFC 3986: a space or a letter outside ASCII makes it none),
  /// URLError where there is no answer, DecodingError where the answer is not what was expected.
  template <JSONDecodable Type>
  static void loadJSON(std::string_view url, StopToken stop, Completion<Type> completion) {
    load(url, std::move(stop), &URLSession::data, decoding(std::move(completion)));
  }

  /// The same for an address that changes something: the request goes out once at most.
  template <JSONDecodable Type>
  static void loadJSONOnce(std::string_view url, Completion<Type> completion) {
    load(url, {}, &URLSession::dataSentOnce, decoding(std::move(completion)));
  }

 private:
  using Request = void (URLSession::*)(std::string_view, StopToken, Completion<std::string>) const;

  template <JSONDecodable Type>
  static Completion<JSONValue> decoding(Completion<Type> completion) {
    return [completion = std::move(completion)](const Answer<JSONValue>& answer) {
      completion(answerOf([&answer] { return Type::decoded(answer.value()); }));
    };
  }
  static void load(std::string_view url, StopToken stop, Request request, Completion<JSONValue> completion);
};

}  // namespace mivo
