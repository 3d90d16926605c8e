// SPDX-License-Identifier: MIT
#include "mivo/roadmap/JSONDataFetcher.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "mivo/platform/Dependencies.h"

namespace mivo {
namespace {

// Characters by RFC 3986, whatever the process's locale is.

constexpr bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }

constexpr bool isHexDigit(char character) {
  return isDigit(character) || (character >= 'a' && character <= 'f') || (character >= 'A' && character <= 'F');
}

constexpr bool isURLCharacter(char character) {
  constexpr std::string_view marks = "-._~:/?#[]@!$&'()*+,;=%";
  return isLetter(character) || isDigit(character) || marks.find(character) != std::string_view::npos;
}

bool areEscapesWhole(std::string_view url) {
  for (std::size_t index = url.find('%'); index != std::string_view::npos; index = url.find('%', index + 1))
    if (index + 2 >= url.size() || !isHexDigit(url[index + 1]) || !isHexDigit(url[index + 2])) return false;
  return true;
}

bool isScheme(std::string_view text) {
  return !text.empty() && isLetter(text.front()) && std::ranges::all_of(text, [](char character) {
    return isLetter(character) || isDigit(character) || character == '+' || character == '-' || character == '.';
  });
}

bool isAbsoluteURL(std::string_view url) {
  const std::size_t colon = url.find("://");
  if (colon == std::string_view::npos || !isScheme(url.substr(0, colon))) return false;
  const std::string_view rest = url.substr(colon + 3);
  const bool hasHost = !rest.empty() && rest.find_first_of("/?#") != 0;
  return hasHost && std::ranges::all_of(rest, isURLCharacter) && areEscapesWhole(rest);
}

}  // namespace

JSONDataFetcher::Error::Error(Case error, std::string_view url)
    : std::runtime_error{"The address \"" + std::string{url} + "\" is not valid."}, errorCase{error} {}

void JSONDataFetcher::load(std::string_view url, StopToken stop, Request request, Completion<JSONValue> completion) {
  if (!isAbsoluteURL(url)) return completion(std::make_exception_ptr(Error{Error::invalidURL, url}));
  const auto& session = dependency(&Dependencies::urlSession);
  ((*session).*request)(url, std::move(stop),
                        [context = currentContext(), decoder = dependency(&Dependencies::jsonDecoder),
                         completion = std::move(completion)](const Answer<std::string>& answer) {
                          const DependencyScope dependencies{context};
                          completion(answerOf([&] { return decoder->decoded(answer.value()); }));
                        });
}

}  // namespace mivo
