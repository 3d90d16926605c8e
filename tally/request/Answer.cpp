// SPDX-License-Identifier: MIT
#include "tally/request/Answer.h"

#include <array>
#include <charconv>

namespace mivo::tally {
namespace {

void appendNumber(std::string& out, std::int64_t number) {
  std::array<char, 20> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  out.append(digits.data(), end);
}

std::string_view statusLine(unsigned status) {
  switch (status) {
    case 200:
      return "HTTP/1.1 200 OK\r\n";
    case notModified:
      return "HTTP/1.1 304 Not Modified\r\n";
    case 400:
      return "HTTP/1.1 400 Bad Request\r\n";
    case 403:
      return "HTTP/1.1 403 Forbidden\r\n";
    case 404:
      return "HTTP/1.1 404 Not Found\r\n";
    case 405:
      return "HTTP/1.1 405 Method Not Allowed\r\n";
    case 408:
      return "HTTP/1.1 408 Request Timeout\r\n";
    case 409:
      return "HTTP/1.1 409 Conflict\r\n";
    case 413:
      return "HTTP/1.1 413 Content Too Large\r\n";
    case 421:
      return "HTTP/1.1 421 Misdirected Request\r\n";
    case 429:
      return "HTTP/1.1 429 Too Many Requests\r\n";
    case 431:
      return "HTTP/1.1 431 Request Header Fields Too Large\r\n";
    case 503:
      return "HTTP/1.1 503 Service Unavailable\r\n";
    default:
      return "HTTP/1.1 500 Internal Server Error\r\n";
  }
}

std::string_view contentType(Content content) {
  return content == Content::json ? "Content-Type: application/json\r\n"
                                  : "Content-Type: text/plain; version=0.0.4; charset=utf-8\r\n";
}

void appendHeader(std::string& out, std::string_view name, std::string_view value) {
  out.append(name).append(": ").append(value).append("\r\n");
}

void appendLength(std::string& out, std::size_t length) {
  out += "Content-Length: ";
  appendNumber(out, static_cast<std::int64_t>(length));
  out += "\r\n";
}

}  // namespace

Answer countAnswer(std::int64_t count) {
  Answer answer;
  answer.body = "{\"value\":";
  appendNumber(answer.body, count);
  answer.body += '}';
  return answer;
}

Answer refusalAnswer(const Refusal& refusal, unsigned retryAfterSeconds) {
  Answer answer;
  answer.status = refusal.status;
  answer.body.append("{\"error\":\"").append(refusal.reason).append("\"}");
  answer.retryAfterSeconds = retryAfterSeconds;
  if (refusal.status == 405) answer.allow = "GET";
  return answer;
}

void appendAnswer(std::string& out, const Answer& answer, const AnswerFrame& frame) {
  out += statusLine(answer.status);
  appendHeader(out, "Date", frame.date);
  if (!answer.head) out += contentType(answer.content);
  if (answer.status != notModified) appendLength(out, (answer.shared ? *answer.shared : answer.body).size());
  out += answer.head ? std::string_view{*answer.head} : "Cache-Control: no-store\r\n";
  out += "X-Content-Type-Options: nosniff\r\n";
  if (answer.retryAfterSeconds > 0) appendHeader(out, "Retry-After", std::to_string(answer.retryAfterSeconds));
  if (!answer.allow.empty()) appendHeader(out, "Allow", answer.allow);
  if (!answer.allowedOrigin.empty()) appendHeader(out, "Access-Control-Allow-Origin", answer.allowedOrigin);
  if (answer.variesByOrigin) appendHeader(out, "Vary", "Origin");
  if (!frame.keepAlive) out += "Connection: close\r\n";
  if (frame.keepAlive && !frame.isHttp11) out += "Connection: keep-alive\r\n";
  out += "\r\n";
  if (frame.withBody) out += answer.body;
}

}  // namespace mivo::tally
