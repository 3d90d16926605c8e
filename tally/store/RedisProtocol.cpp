// SPDX-License-Identifier: MIT
#include "tally/store/RedisProtocol.h"

#include <hiredis/hiredis.h>

#include <new>
#include <stdexcept>

namespace mivo::tally {
namespace {

// The longest list that is asked for is a page of a scan: a thousand keys, or some more.
constexpr std::size_t longestList = 100'000;

const redisReplyObjectFunctions& usualFunctions() {
  static const auto functions = [] {
    const std::unique_ptr<redisReader, void (*)(redisReader*)> reader{redisReaderCreate(), redisReaderFree};
    if (!reader) throw std::bad_alloc{};
    return *reader->fn;
  }();
  return functions;
}

// hiredis takes the memory of a whole list as soon as its length is known, and before release 1 it has no bound of its
// own. The type of a length differs between its releases.
template <class Length>
void* createBoundedArray(const redisReadTask* task, Length length) {
  return static_cast<std::size_t>(length) > longestList ? nullptr : usualFunctions().createArray(task, length);
}

redisReplyObjectFunctions* boundedFunctions() {
  static auto functions = [] {
    auto changed = usualFunctions();
    changed.createArray = createBoundedArray;
    return changed;
  }();
  return &functions;
}

RedisReply converted(const redisReply& reply) {
  RedisReply result;
  switch (reply.type) {
    case REDIS_REPLY_INTEGER:
      result.kind = RedisReply::Kind::integer;
      result.integer = reply.integer;
      break;
    case REDIS_REPLY_STRING:
    case REDIS_REPLY_STATUS:
      result.kind = RedisReply::Kind::text;
      result.text.assign(reply.str, static_cast<std::size_t>(reply.len));
      break;
    case REDIS_REPLY_ERROR:
      result.kind = RedisReply::Kind::error;
      result.text.assign(reply.str, static_cast<std::size_t>(reply.len));
      break;
    case REDIS_REPLY_ARRAY:
      result.kind = RedisReply::Kind::list;
      for (std::size_t i = 0; i < reply.elements; ++i) result.list.push_back(converted(*reply.element[i]));
      break;
    default:
      break;
  }
  return result;
}

}  // namespace

std::string redisKey(std::string_view counter) { return std::string{redisKeyPrefix}.append(counter); }

void appendCommand(std::string& out, std::span<const std::string_view> words) {
  std::vector<const char*> texts;
  std::vector<std::size_t> lengths;
  for (const auto word : words) {
    texts.push_back(word.data());
    lengths.push_back(word.size());
  }
  char* command = nullptr;
  const auto length = redisFormatCommandArgv(&command, static_cast<int>(words.size()), texts.data(), lengths.data());
  if (length == -1) throw std::bad_alloc{};
  out.append(command, static_cast<std::size_t>(length));
  redisFreeCommand(command);
}

void appendCommand(std::string& out, std::initializer_list<std::string_view> words) {
  appendCommand(out, std::span{words.begin(), words.size()});
}

RedisReplyReader::RedisReplyReader() : reader(redisReaderCreateWithFunctions(boundedFunctions())) {
  if (reader == nullptr) throw std::bad_alloc{};
}

RedisReplyReader::~RedisReplyReader() { redisReaderFree(reader); }

void RedisReplyReader::feed(std::string_view bytes) { redisReaderFeed(reader, bytes.data(), bytes.size()); }

std::optional<RedisReply> RedisReplyReader::next() {
  void* found = nullptr;
  const bool isRead = redisReaderGetReply(reader, &found) == REDIS_OK;
  if (!isRead && reader->err == REDIS_ERR_OOM) throw std::runtime_error("a reply that is too large to be held");
  if (!isRead) throw std::runtime_error(static_cast<const char*>(reader->errstr));
  if (found == nullptr) return std::nullopt;
  const std::unique_ptr<void, void (*)(void*)> owner{found, freeReplyObject};
  return converted(*static_cast<redisReply*>(found));
}

}  // namespace mivo::tally
