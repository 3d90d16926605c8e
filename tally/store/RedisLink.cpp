// SPDX-License-Identifier: MIT
#include "tally/store/RedisLink.h"

#include <boost/asio/connect.hpp>

namespace mivo::tally {
template <class Next>
auto RedisLink::step(Next next) {
  return [self = shared_from_this(), next = std::move(next)](error_code error, const auto&... results) {
    if (!self->lost) return;
    if (error == asio::error::eof) return self->lose("it closed the connection");
    if (error) return self->lose(error.message());
    next(results...);
  };
}

RedisLink::RedisLink(asio::io_context& eventLoop, RedisAddress server, std::chrono::seconds patience)
    : address(std::move(server)),
      longestWait(patience),
      loop(eventLoop),
      tls(ssl::context::tls_client),
      resolver(eventLoop),
      deadline(eventLoop) {
  tls.set_options(ssl::context::no_tlsv1 | ssl::context::no_tlsv1_1);
  error_code ignored;  // without authorities no certificate passes, which then says so
  static_cast<void>(tls.set_default_verify_paths(ignored));
}

void RedisLink::open(std::function<void()> whenReady, Lost whenLost) {
  ready = std::move(whenReady);
  lost = std::move(whenLost);
  startDeadline();
  resolver.async_resolve(address.endpoint.host, address.endpoint.port,
                         step([this](const tcp::resolver::results_type& endpoints) { connect(endpoints); }));
}

void RedisLink::connect(const tcp::resolver::results_type& endpoints) {
  if (address.isSecure) {
    stream.emplace(tcp::socket{loop}, tls);
  } else {
    stream.emplace(tcp::socket{loop});
  }
  asio::async_connect(stream->socket(), endpoints, step([this](const auto&) {  // the endpoint that answered
                        error_code ignored;  // where it is gone again already, the first read says so
                        static_cast<void>(stream->socket().set_option(tcp::no_delay{true}, ignored));
                        static_cast<void>(stream->socket().set_option(asio::socket_base::keep_alive{true}, ignored));
                        address.isSecure ? secure() : logIn();
                      }));
}

void RedisLink::secure() {
  if (const auto error = stream->expectHost(address.endpoint.host)) return lose(error.message());
  stream->handshake(ssl::stream_base::client, step([this] { logIn(); }));
}

void RedisLink::logIn() {
  read();
  std::string login;
  const bool hasUser = !address.user.empty();
  const bool hasLogin = hasUser || !address.password.empty();
  if (hasUser) appendCommand(login, {"AUTH", address.user, address.password});
  if (!hasUser && hasLogin) appendCommand(login, {"AUTH", address.password});
  appendCommand(login, {"SELECT", std::to_string(address.database)});
  appendCommand(login, {"GET", redisKeyPrefix});  // fails while Redis still loads its file
  exchange(std::move(login), hasLogin ? 3 : 2, [this](const Replies& answers) {
    for (const auto& reply : answers)
      if (reply.kind == RedisReply::Kind::error) return lose(reply.text);
    std::exchange(ready, {})();
  });
}

void RedisLink::exchange(std::string sent, std::size_t count, Replied whenReplied) {
  commands = std::move(sent);
  expected = count;
  replied = std::move(whenReplied);
  startDeadline();
  stream->write(asio::buffer(commands), step([](std::size_t) {}));
}

void RedisLink::read() {
  stream->readSome(asio::buffer(bytes), step([this](std::size_t size) { take(size); }));
}

void RedisLink::take(std::size_t size) {
  try {
    reader.feed({bytes.data(), size});
    while (auto reply = reader.next()) replies.push_back(std::move(*reply));
  } catch (const std::exception& error) {
    return lose(error.what());
  }
  if (replies.size() > expected) return lose("an answer that nobody asked for");
  if (expected > 0 && replies.size() == expected) {
    expected = 0;
    deadline.expires_at(asio::steady_timer::time_point::max());
    std::exchange(replied, {})(std::exchange(replies, {}));
  }
  if (lost) read();
}

void RedisLink::startDeadline() {
  deadline.expires_after(longestWait);
  deadline.async_wait([self = shared_from_this()](error_code error) {
    // The answer may have come after the time ran out, and before this was called.
    const bool isOver = !error && self->deadline.expiry() <= std::chrono::steady_clock::now();
    if (isOver) self->lose("no answer within " + std::to_string(self->longestWait.count()) + " s");
  });
}

void RedisLink::lose(const std::string& reason) {
  const auto tell = std::exchange(lost, {});
  close();
  if (tell) asio::post(loop, [tell, reason] { tell(reason); });
}

void RedisLink::close() {
  lost = {};
  ready = {};
  replied = {};
  resolver.cancel();
  deadline.cancel();
  if (stream) stream->close();
}

}  // namespace mivo::tally
