// SPDX-License-Identifier: MIT
#include "tally/request/RequestReader.h"

#include "tally/request/AsciiCase.h"

#include <algorithm>
#include <utility>

#include <boost/asio/buffer.hpp>
#include <boost/beast/core/string.hpp>
#include <boost/beast/http/basic_parser.hpp>
#include <boost/beast/http/error.hpp>

namespace mivo::tally {
namespace {

namespace http = boost::beast::http;
using boost::system::error_code;
using View = boost::beast::string_view;  // the library's own kind, which differs between its releases

constexpr Refusal malformed{400, "the request is not well-formed HTTP/1.1"};
constexpr Refusal withBody{413, "a request must not have a body"};
constexpr Refusal tooLong{431, "the request's line and headers must fit 8192 bytes"};

std::string_view standard(View text) { return {text.data(), text.size()}; }

// The parser checks the grammar and hands over views; only what Request names is kept.
class Parser : public http::basic_parser<true> {
 public:
  explicit Parser(std::string_view bytes) : whole(bytes) { header_limit(largestRequest); }
  const Request& request() const { return found; }
  bool hasBody() const { return hasTransferEncoding || content_length_remaining().value_or(0) > 0; }

 private:
  // The parser unfolds a folded line into a buffer of its own, which would be gone when the view is used.
  bool isInPlace(std::string_view name, std::string_view value) const {
    if (value.empty()) return !isFoldedAway(name);
    return value.data() >= whole.data() && value.data() < whole.data() + whole.size();
  }

  // An empty value that goes on in the next line is unfolded to an empty text.
  bool isFoldedAway(std::string_view name) const {
    const auto rest = whole.substr(static_cast<std::size_t>(name.data() + name.size() - whole.data()));
    const auto next = rest.find("\r\n");
    return next != std::string_view::npos && rest.size() > next + 2 &&
           (rest[next + 2] == ' ' || rest[next + 2] == '\t');
  }

  void keepOnce(std::string_view& kept, std::string_view value, error_code& error) {
    if (kept.data() != nullptr) error = http::error::bad_field;
    kept = value.empty() ? std::string_view{""} : value;
  }

  void keep(std::string_view name, std::string_view value, error_code& error) {
    if (equalsIgnoringCase(name, "Host")) return keepOnce(found.host, value, error);
    if (equalsIgnoringCase(name, "Origin")) return keepOnce(found.origin, value, error);
    // Which words the library knows differs between its releases, so what protects is found by its name.
    if (equalsIgnoringCase(name, "Transfer-Encoding")) hasTransferEncoding = true;
    if (equalsIgnoringCase(name, "Sec-Fetch-Site")) found.fetchSite = value;
    if (equalsIgnoringCase(name, "Referer")) found.referer = value;
    if (equalsIgnoringCase(name, "X-Forwarded-For")) found.forwardedFor = value;
    if (equalsIgnoringCase(name, "If-None-Match")) found.ifNoneMatch = value;
    if (equalsIgnoringCase(name, "Accept-Encoding")) found.acceptEncoding = value;
    const bool saysPurpose = equalsIgnoringCase(name, "Sec-Purpose") || equalsIgnoringCase(name, "Purpose") ||
                             equalsIgnoringCase(name, "X-Purpose") || equalsIgnoringCase(name, "X-Moz");
    if (saysPurpose && value.starts_with("pre")) found.isPrefetch = true;  // prefetch, prerender, preview
  }

  void on_request_impl(http::verb, View name, View target, int version, error_code&) override {
    found.methodName = standard(name);
    if (found.methodName == "GET") found.method = Method::get;
    if (found.methodName == "HEAD") found.method = Method::head;
    found.target = standard(target);
    found.isHttp11 = version == 11;
  }

  void on_field_impl(http::field, View name, View value, error_code& error) override {
    if (isInPlace(standard(name), standard(value))) return keep(standard(name), standard(value), error);
    error = http::error::bad_value;
  }

  void on_header_impl(error_code& error) override {
    found.keepAlive = keep_alive();
    if (found.isHttp11 && found.host.empty()) error = http::error::bad_field;
  }

  void on_response_impl(int, View, int, error_code&) override {}
  void on_body_init_impl(const boost::optional<std::uint64_t>&, error_code&) override {}
  std::size_t on_body_impl(View body, error_code&) override { return body.size(); }
  void on_chunk_header_impl(std::uint64_t, View, error_code&) override {}
  std::size_t on_chunk_body_impl(std::uint64_t, View body, error_code&) override { return body.size(); }
  void on_finish_impl(error_code&) override {}

  std::string_view whole;
  Request found;
  bool hasTransferEncoding = false;
};

RequestReading refused(Refusal refusal) {
  return {.state = RequestReading::State::refused, .consumed = 0, .request = {}, .refusal = refusal};
}

// A method is upper-case letters: anything else (a TLS greeting to a plain port) need not be waited for.
bool canBegin(char first) { return first >= 'A' && first <= 'Z'; }

}  // namespace

RequestReading readRequest(std::string_view bytes) {
  std::size_t blank = 0;  // an empty line before a request is to be ignored (RFC 9112, 2.2)
  while (bytes.substr(blank).starts_with("\r\n")) blank += 2;
  const auto text = bytes.substr(blank);
  const RequestReading more{.state = RequestReading::State::needsMore, .consumed = blank, .request = {}, .refusal = {}};
  if (text.empty() || text == "\r") return more;
  if (!canBegin(text.front())) return refused(malformed);

  Parser parser{text};
  error_code error;
  const auto parsed = parser.put(boost::asio::const_buffer{text.data(), text.size()}, error);
  // The parser minds its limit only where the bytes come in pieces.
  const bool isTooLong = error == http::error::need_more ? text.size() >= largestRequest : parsed > largestRequest;
  if (isTooLong || error == http::error::header_limit) return refused(tooLong);
  if (error == http::error::need_more) return more;
  if (error && error != http::error::body_limit) return refused(malformed);
  if (error || parser.hasBody()) return refused(parser.request().method == Method::other ? onlyGetAndHead : withBody);
  return {RequestReading::State::complete, blank + parsed, parser.request(), {}};
}

}  // namespace mivo::tally
