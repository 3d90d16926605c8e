// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

#include "tally/store/RedisProtocol.h"

namespace {

using mivo::tally::RedisReply;

bool equal(const RedisReply& one, const RedisReply& other) {
  if (one.kind != other.kind || one.integer != other.integer || one.text != other.text) return false;
  if (one.list.size() != other.list.size()) return false;
  for (std::size_t i = 0; i < one.list.size(); ++i)
    if (!equal(one.list[i], other.list[i])) return false;
  return true;
}

struct Read {
  std::vector<RedisReply> replies;
  bool isRedis = true;
};

Read readInPieces(std::string_view bytes, std::size_t piece) {
  Read read;
  mivo::tally::RedisReplyReader reader;
  try {
    while (!bytes.empty()) {
      reader.feed(bytes.substr(0, piece));
      bytes = bytes.size() > piece ? bytes.substr(piece) : std::string_view{};
      while (auto reply = reader.next()) read.replies.push_back(std::move(*reply));
    }
  } catch (const std::runtime_error&) {
    read.isRedis = false;
  }
  return read;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes{reinterpret_cast<const char*>(data), size};
  const auto whole = readInPieces(bytes, bytes.size() + 1);
  const auto pieces = readInPieces(bytes, 3);
  if (whole.isRedis != pieces.isRedis || whole.replies.size() != pieces.replies.size()) std::abort();
  for (std::size_t i = 0; i < whole.replies.size(); ++i)
    if (!equal(whole.replies[i], pieces.replies[i])) std::abort();
  return 0;
}
