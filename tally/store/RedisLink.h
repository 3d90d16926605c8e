// SPDX-License-Identifier: MIT
#pragma once
#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "tally/net/Stream.h"
#include "tally/store/RedisProtocol.h"
#include "tally/store/StoreAddress.h"

namespace mivo::tally {

/// One connection to Redis, with one batch of commands in flight. It reads all the time, so that a connection that
/// broke is known before the next vote is trusted to it. It never repeats anything: once lost it stays lost. Everything
/// happens on the event loop; no callback is called from inside a member function.
class RedisLink : public std::enable_shared_from_this<RedisLink> {
 public:
  using Replies = std::vector<RedisReply>;
  using Replied = std::function<void(Replies)>;
  using Lost = std::function<void(const std::string& reason)>;

  /// Nothing may take longer than `longestWait`: more than any healthy Redis takes, also one that flushes each write,
  /// and less than a client waits.
  RedisLink(asio::io_context& loop, RedisAddress address, std::chrono::seconds longestWait = std::chrono::seconds{5});

  /// Connects and logs in. `ready` is called once, unless `lost` is; `lost` is called once, then or later.
  void open(std::function<void()> whenReady, Lost whenLost);
  /// Sends commands that will have `count` replies. Where the answer does not come within seconds, or not whole, the
  /// link is lost and `replied` is dropped.
  void exchange(std::string sent, std::size_t count, Replied whenReplied);
  /// Drops everything without a word.
  void close();

 private:
  void connect(const tcp::resolver::results_type& endpoints);
  void secure();
  void logIn();
  void read();
  void take(std::size_t size);
  void startDeadline();
  void lose(const std::string& reason);

  // Wraps a step's handler: what went wrong loses the link, what went well goes on unless the link is lost already.
  template <class Next>
  auto step(Next next);

  RedisAddress address;
  std::chrono::seconds longestWait;
  asio::io_context& loop;
  ssl::context tls;
  tcp::resolver resolver;
  asio::steady_timer deadline;
  std::optional<Stream> stream;
  RedisReplyReader reader;
  std::array<char, std::size_t{16} * 1024> bytes{};
  std::string commands;
  Replies replies;
  std::size_t expected = 0;
  Replied replied;
  std::function<void()> ready;
  Lost lost;  ///< until it is closed
};

}  // namespace mivo::tally
