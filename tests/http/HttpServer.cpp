// SPDX-License-Identifier: MIT
#include "tests/http/HttpServer.h"

#include <arpa/inet.h>
#include <openssl/ssl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <mutex>
#include <optional>
#include <stdexcept>
#include <utility>

#include "tests/http/TlsContext.h"
#include "tests/support/Threads.h"

namespace mivo::tests {
namespace {

std::string head(int code, std::string_view more, std::size_t length) {
  return "HTTP/1.1 " + std::to_string(code) + " Status\r\n" + std::string{more} +
         "Content-Length: " + std::to_string(length) + "\r\n\r\n";
}

/// A connection that may or may not be encrypted.
class Peer {
 public:
  Peer(int accepted, SSL_CTX* context) : descriptor{accepted} {
    if (!context) return;
    tls.reset(SSL_new(context));
    SSL_set_fd(tls.get(), descriptor);
    isOpen = SSL_accept(tls.get()) == 1;
  }

  /// Up to the empty line that ends the head of a request; nothing once the client is gone.
  std::optional<std::string> readHead() {
    std::string text;
    while (isOpen && !text.ends_with("\r\n\r\n")) {
      char byte = 0;
      const auto count = tls ? SSL_read(tls.get(), &byte, 1) : ::recv(descriptor, &byte, 1, 0);
      if (count <= 0) return std::nullopt;
      text += byte;
    }
    return isOpen ? std::optional{text} : std::nullopt;
  }

  void write(std::string_view bytes) {
    while (!bytes.empty()) {
      const auto count = tls ? SSL_write(tls.get(), bytes.data(), static_cast<int>(bytes.size()))
                             : ::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      if (count <= 0) return;
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

 private:
  int descriptor;
  std::unique_ptr<SSL, Free<SSL_free>> tls;
  bool isOpen = true;
};

}  // namespace

HttpReply ok(std::string_view body) { return status(200, body); }

HttpReply status(int code, std::string_view body) { return {head(code, "", body.size()) + std::string{body}}; }

HttpReply redirection(std::string_view location) {
  return {head(302, "Location: " + std::string{location} + "\r\n", 0)};
}

HttpReply cutOff(std::string_view body) {
  return {head(200, "", body.size()) + std::string{body.substr(0, body.size() / 2)}, HttpReply::Then::closes};
}

HttpReply silence() { return {"", HttpReply::Then::hangs}; }

struct HttpServer::Listener {
  Handler handler;
  std::unique_ptr<SSL_CTX, Free<SSL_CTX_free>> tls;
  int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  int port = 0;
  std::mutex mutex;
  bool isClosing = false;
  std::vector<std::string> targets;
  std::vector<int> connections;
  Threads threads;

  void listen() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (::bind(descriptor, generic, size) != 0 || ::listen(descriptor, 64) != 0 ||
        ::getsockname(descriptor, generic, &size) != 0)
      throw std::runtime_error{"the test's server cannot listen"};
    port = ntohs(address.sin_port);
    threads.start([this] { accept(); });
  }

  void accept() {
    for (;;) {
      const int accepted = ::accept4(descriptor, nullptr, nullptr, SOCK_CLOEXEC);
      const std::scoped_lock lock{mutex};
      if (isClosing || accepted < 0) {
        if (accepted >= 0) ::close(accepted);
        return;
      }
      connections.push_back(accepted);
      threads.start([this, accepted] { serve(accepted); });
    }
  }

  void serve(int accepted) {
    Peer peer{accepted, tls.get()};
    while (const auto request = peer.readHead()) {
      const std::size_t begin = request->find(' ') + 1;
      std::string target = request->substr(begin, request->find(' ', begin) - begin);
      {
        const std::scoped_lock lock{mutex};
        targets.push_back(target);
      }
      const HttpReply reply = handler(target);
      peer.write(reply.bytes);
      if (reply.then == HttpReply::Then::closes) break;
    }
    ::shutdown(accepted, SHUT_RDWR);
  }

  ~Listener() {
    Threads running;
    {
      const std::scoped_lock lock{mutex};
      isClosing = true;
      ::shutdown(descriptor, SHUT_RDWR);  // wakes the one that accepts
      for (const int connection : connections) ::shutdown(connection, SHUT_RDWR);
      running = std::move(threads);
    }
    running.join();
    for (const int connection : connections) ::close(connection);
    ::close(descriptor);
  }
};

HttpServer::HttpServer(Handler handler) : listener{std::make_unique<Listener>()} {
  listener->handler = std::move(handler);
  listener->listen();
}

HttpServer::HttpServer(Handler handler, const TlsIdentity& identity) : listener{std::make_unique<Listener>()} {
  listener->handler = std::move(handler);
  listener->tls = serverContext(identity);
  listener->listen();
}

HttpServer::~HttpServer() = default;

std::string HttpServer::address() const {
  return (listener->tls ? "https://127.0.0.1:" : "http://127.0.0.1:") + std::to_string(listener->port);
}

std::vector<std::string> HttpServer::targets() const {
  const std::scoped_lock lock{listener->mutex};
  return listener->targets;
}

int HttpServer::connectionCount() const {
  const std::scoped_lock lock{listener->mutex};
  return static_cast<int>(listener->connections.size());
}

}  // namespace mivo::tests
