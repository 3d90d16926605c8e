// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace mivo::tally {

/// A request that is not answered with what it asked for: an HTTP status and one sentence that says why.
struct Refusal {
  unsigned status = 0;
  std::string_view reason;  // a literal, without characters that JSON escapes
  bool operator==(const Refusal&) const = default;
};

inline constexpr unsigned notModified = 304;  // the client has it already, so it has no body

inline constexpr Refusal onlyGetAndHead{405, "only GET and HEAD are understood"};

enum class Content { json, text };

struct Answer {
  unsigned status = 200;
  Content content = Content::json;
  std::string body = {};
  std::shared_ptr<const std::string> shared = {};  // a body that many answers have, instead of their own
  std::shared_ptr<const std::string> head = {};    // header lines of it, instead of type and `no-store`
  unsigned retryAfterSeconds = 0;                  // 0 leaves the header out
  std::string_view allow = {};                     // the methods of a 405
  std::string_view allowedOrigin = {};             // for other sites' pages; empty leaves the header out
  bool variesByOrigin = false;
};

/// {"value":7}
Answer countAnswer(std::int64_t count);
/// {"error":"..."}
Answer refusalAnswer(const Refusal& refusal, unsigned retryAfterSeconds = 0);

struct AnswerFrame {
  std::string_view date;  // as the Date header writes it
  bool withBody = true;   // false answers a HEAD: the length is said, the body is not sent
  bool keepAlive = true;
  bool isHttp11 = true;
};

/// Appends the answer as it goes over the wire. An answer without a head of its own is `Cache-Control: no-store`: a
/// count that is served from a cache is a wrong one. A shared body is left to whoever sends it, behind this.
void appendAnswer(std::string& out, const Answer& answer, const AnswerFrame& frame);

}  // namespace mivo::tally
