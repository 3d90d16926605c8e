// SPDX-License-Identifier: MIT
#include "tests/tally_support/RedisServer.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace mivo::tally::test {
namespace {

int freePort() {
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  const bool isBound = ::bind(socket, reinterpret_cast<const sockaddr*>(&address), size) == 0 &&
                       ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) == 0;
  ::close(socket);
  if (!isBound) throw std::runtime_error("no free port");
  return ntohs(address.sin_port);
}

}  // namespace

RedisServer::RedisServer(const Setup& setup) : setup_(setup) {
  constexpr int attempts = 5;  // another program may take the port that was free
  for (int attempt = 1;; ++attempt) {
    port_ = freePort();
    try {
      start();
      return;
    } catch (const std::exception&) {
      if (attempt == attempts) throw;
    }
  }
}

std::string RedisServer::address(int database) const {
  const std::string scheme = setup_.certificate ? "rediss://" : "redis://";
  const auto login = setup_.password.empty() ? std::string{} : ":" + setup_.password + "@";
  return scheme + login + (setup_.certificate ? "localhost:" : "127.0.0.1:") + std::to_string(port_) + '/' +
         std::to_string(database);
}

void RedisServer::restart() {
  process_->kill();
  start();
}

void RedisServer::start() {
  const auto port = std::to_string(port_);
  std::vector<std::string> command{"redis-server",
                                   "--bind",
                                   "127.0.0.1",
                                   "--dir",
                                   folder_.path.string(),
                                   "--appendonly",
                                   "yes",
                                   "--appendfsync",
                                   "always",
                                   "--save",
                                   "",
                                   "--port",
                                   setup_.certificate ? "0" : port};
  const auto add = [&](std::initializer_list<std::string> words) { command.insert(command.end(), words); };
  if (!setup_.password.empty()) add({"--requirepass", setup_.password});
  if (setup_.certificate)
    add({"--tls-port", port, "--tls-auth-clients", "no", "--tls-cert-file", setup_.certificate->certificate,
         "--tls-key-file", setup_.certificate->key, "--tls-ca-cert-file", setup_.certificate->certificate});
  process_.emplace(command);
  process_->waitForLine("Ready to accept connections");
}

}  // namespace mivo::tally::test
