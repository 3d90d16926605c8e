// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct redisReader;

namespace mivo::tally {

/// What stands before a counter's name in its key, so that the server can share a Redis.
inline constexpr std::string_view redisKeyPrefix = "mivo-tally:";
std::string redisKey(std::string_view counter);

/// Appends a command as it goes over the wire.
void appendCommand(std::string& out, std::span<const std::string_view> words);
void appendCommand(std::string& out, std::initializer_list<std::string_view> words);

struct RedisReply {
  enum class Kind { nothing, integer, text, error, list };
  Kind kind = Kind::nothing;
  std::int64_t integer = 0;
  std::string text;  // of a text or an error
  std::vector<RedisReply> list;
};

/// Cuts a stream of bytes into replies. A list has at most 100,000 elements: what the peer announces costs no more than
/// a megabyte for each level before it has come.
class RedisReplyReader {
 public:
  RedisReplyReader();
  ~RedisReplyReader();
  RedisReplyReader(const RedisReplyReader&) = delete;
  RedisReplyReader& operator=(const RedisReplyReader&) = delete;

  void feed(std::string_view bytes);
  /// The next whole reply, or nothing where more bytes are needed. Throws std::runtime_error for what is not Redis
  /// and for a list that is longer; no further reply can be read then.
  std::optional<RedisReply> next();

 private:
  redisReader* reader;
};

}  // namespace mivo::tally
