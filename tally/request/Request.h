// SPDX-License-Identifier: MIT
#pragma once
#include <string_view>

namespace mivo::tally {

enum class Method { get, head, other };

/// What the server wants to know of a request. The texts are views into the bytes it was read from; a header that was
/// not sent is empty.
struct Request {
  Method method = Method::other;
  std::string_view methodName;
  std::string_view target;
  std::string_view host;
  std::string_view origin;
  std::string_view referer;
  std::string_view fetchSite;     // Sec-Fetch-Site
  std::string_view forwardedFor;  // the last X-Forwarded-For line: the nearest balancer's
  std::string_view ifNoneMatch;
  std::string_view acceptEncoding;
  bool isPrefetch = false;
  bool isHttp11 = true;
  bool keepAlive = true;
};

}  // namespace mivo::tally
