// SPDX-License-Identifier: MIT
#include "web/adapters/FetchSession.h"

#include <exception>
#include <utility>

#include "web/adapters/Imports.h"

namespace mivo::web {

struct FetchSession::Request {
  std::string url;
  Completion<std::string> completion;
  StopCallback abort;
};

FetchSession::FetchSession() = default;
FetchSession::~FetchSession() = default;

void FetchSession::data(std::string_view url, StopToken stop, Completion<std::string> completion) const {
  const double ticket = ++last;
  importedFetch(ticket, url.data(), url.size());
  waiting.emplace(ticket, new Request{std::string{url}, std::move(completion),
                                      StopCallback{stop, [ticket] { importedAbortFetch(ticket); }}});
}

void FetchSession::answered(double ticket, bool hasFailed, std::string text) const {
  const auto request = waiting.extract(ticket);
  if (!request) return;
  const auto& [url, completion, abort] = *request.mapped();
  if (hasFailed)
    completion(std::make_exception_ptr(URLError{url + ": " + text}));
  else
    completion(std::move(text));
}

}  // namespace mivo::web
