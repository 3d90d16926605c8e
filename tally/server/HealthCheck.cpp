// SPDX-License-Identifier: MIT
#include "tally/server/HealthCheck.h"

#include <boost/asio/connect.hpp>
#include <iostream>
#include <string>

#include "tally/net/Stream.h"

namespace mivo::tally {
namespace {

constexpr std::chrono::seconds patience{5};
constexpr std::string_view request = "GET /health HTTP/1.0\r\n\r\n";

// One question and its answer. The loop ends where the answer has come, or nothing more will.
class Question {
  template <class Next>
  auto step(Next next) {
    return [this, next](error_code error, auto...) { error ? fail(error) : next(); };
  }

 public:
  Question(asio::io_context& loop, bool underTls)
      : stream{tcp::socket{loop}}, tls{ssl::context::tls_client}, isSecure{underTls} {}

  void put(const Endpoint& endpoint) {
    error_code error;
    const auto found = tcp::resolver{stream.socket().get_executor()}.resolve(endpoint.host, endpoint.port, error);
    if (error) return fail(error);
    asio::async_connect(stream.socket(), found, step([this] { greet(); }));
  }

  std::string answer;
  std::string fault;

 private:
  void greet() {
    if (!isSecure) return ask();
    stream.secure(tls);
    stream.handshake(ssl::stream_base::client, step([this] { ask(); }));
  }

  void ask() {
    stream.write(asio::buffer(request), step([this] { read(); }));
  }

  void read() {
    stream.readSome(asio::buffer(bytes), [this](error_code error, std::size_t size) {
      answer.append(bytes.data(), size);
      if (!error) read();
    });
  }

  void fail(const error_code& error) { fault = error.message(); }

  Stream stream;
  ssl::context tls;
  bool isSecure;
  std::array<char, 1024> bytes{};
};

}  // namespace

bool isHealthy(const HealthOptions& options) {
  asio::io_context loop;
  Question question{loop, options.isSecure};
  question.put(options.endpoint);
  loop.run_for(patience);
  if (question.fault.empty() && question.answer.empty()) question.fault = "no answer";
  if (!question.fault.empty()) {
    std::cout << describe(options.endpoint) << ": " << question.fault << '\n';
    return false;
  }
  const auto body = question.answer.find("\r\n\r\n");
  std::cout << (body == std::string::npos ? question.answer : question.answer.substr(body + 4)) << '\n';
  return question.answer.starts_with("HTTP/1.1 200 ");
}

}  // namespace mivo::tally
