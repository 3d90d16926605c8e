// SPDX-License-Identifier: MIT
#include "tally/store/RedisLink.h"

#include <boost/asio/connect.hpp>

namespace mivo::tally {
template <class Next>
auto RedisLink::step(Next next) {
  return [self = shared_from_this(), next = std::move(next)](error_code error, const auto&... results) {
    if (self->isClosed_) return;
    if (error == asio::error::eof) return self->lose("it closed the connection");
    if (error) return self->lose(error.message());
    next(results...);
  };
}

RedisLink::RedisLink(asio::io_context& loop, RedisAddress address, std::chrono::seconds longestWait)
    : address_(std::move(address)),
      longestWait_(longestWait),
      loop_(loop),
      tls_(ssl::context::tls_client),
      resolver_(loop),
      deadline_(loop) {
  tls_.set_options(ssl::context::no_tlsv1 | ssl::context::no_tlsv1_1);
  error_code ignored;  // without authorities no certificate passes, which then says so
  static_cast<void>(tls_.set_default_verify_paths(ignored));
}

void RedisLink::open(std::function<void()> ready, Lost lost) {
  ready_ = std::move(ready);
  lost_ = std::move(lost);
  startDeadline();
  resolver_.async_resolve(address_.endpoint.host, address_.endpoint.port,
                          step([this](const tcp::resolver::results_type& endpoints) { connect(endpoints); }));
}

void RedisLink::connect(const tcp::resolver::results_type& endpoints) {
  if (address_.isSecure) {
    stream_.emplace(tcp::socket{loop_}, tls_);
  } else {
    stream_.emplace(tcp::socket{loop_});
  }
  asio::async_connect(stream_->socket(), endpoints, step([this](const auto&) {  // the endpoint that answered
                        error_code ignored;  // where it is gone again already, the first read says so
                        static_cast<void>(stream_->socket().set_option(tcp::no_delay{true}, ignored));
                        static_cast<void>(stream_->socket().set_option(asio::socket_base::keep_alive{true}, ignored));
                        address_.isSecure ? secure() : logIn();
                      }));
}

void RedisLink::secure() {
  if (const auto error = stream_->expectHost(address_.endpoint.host)) return lose(error.message());
  stream_->handshake(ssl::stream_base::client, step([this] { logIn(); }));
}

void RedisLink::logIn() {
  read();
  std::string commands;
  const bool hasUser = !address_.user.empty();
  const bool hasLogin = hasUser || !address_.password.empty();
  if (hasUser) appendCommand(commands, {"AUTH", address_.user, address_.password});
  if (!hasUser && hasLogin) appendCommand(commands, {"AUTH", address_.password});
  appendCommand(commands, {"SELECT", std::to_string(address_.database)});
  appendCommand(commands, {"GET", redisKeyPrefix});  // fails while Redis still loads its file
  exchange(std::move(commands), hasLogin ? 3 : 2, [this](const Replies& replies) {
    for (const auto& reply : replies)
      if (reply.kind == RedisReply::Kind::error) return lose(reply.text);
    std::exchange(ready_, {})();
  });
}

void RedisLink::exchange(std::string commands, std::size_t count, Replied replied) {
  commands_ = std::move(commands);
  expected_ = count;
  replied_ = std::move(replied);
  startDeadline();
  stream_->write(asio::buffer(commands_), step([](std::size_t) {}));
}

void RedisLink::read() {
  stream_->readSome(asio::buffer(bytes_), step([this](std::size_t size) { take(size); }));
}

void RedisLink::take(std::size_t size) {
  try {
    reader_.feed({bytes_.data(), size});
    while (auto reply = reader_.next()) replies_.push_back(std::move(*reply));
  } catch (const std::exception& error) {
    return lose(error.what());
  }
  if (replies_.size() > expected_) return lose("an answer that nobody asked for");
  if (expected_ > 0 && replies_.size() == expected_) {
    expected_ = 0;
    deadline_.expires_at(asio::steady_timer::time_point::max());
    std::exchange(replied_, {})(std::exchange(replies_, {}));
  }
  if (!isClosed_) read();
}

void RedisLink::startDeadline() {
  deadline_.expires_after(longestWait_);
  deadline_.async_wait([self = shared_from_this()](error_code error) {
    // The answer may have come after the time ran out, and before this was called.
    const bool isOver = !error && self->deadline_.expiry() <= std::chrono::steady_clock::now();
    if (isOver && !self->isClosed_) self->lose("no answer within " + std::to_string(self->longestWait_.count()) + " s");
  });
}

void RedisLink::lose(const std::string& reason) {
  const auto lost = std::exchange(lost_, {});
  close();
  if (lost) asio::post(loop_, [lost, reason] { lost(reason); });
}

void RedisLink::close() {
  isClosed_ = true;
  lost_ = {};
  ready_ = {};
  replied_ = {};
  resolver_.cancel();
  deadline_.cancel();
  if (stream_) stream_->close();
}

}  // namespace mivo::tally
