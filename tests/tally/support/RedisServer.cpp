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

RedisServer::RedisServer(const Setup& wanted) : setup(wanted) {
  constexpr int attempts = 5;  // another program may take the port that was free
  for (int attempt = 1;; ++attempt) {
    port = freePort();
    try {
      start();
      return;
    } catch (const std::exception&) {
      if (attempt == attempts) throw;
    }
  }
}

std::string RedisServer::address(int database) const {
  const std::string scheme = setup.certificate ? "rediss://" : "redis://";
  const auto login = setup.password.empty() ? std::string{} : ":" + setup.password + "@";
  return scheme + login + (setup.certificate ? "localhost:" : "127.0.0.1:") + std::to_string(port) + '/' +
         std::to_string(database);
}

void RedisServer::restart() {
  program->kill();
  start();
}

void RedisServer::start() {
  const auto portText = std::to_string(port);
  std::vector<std::string> command{"redis-server",
                                   "--bind",
                                   "127.0.0.1",
                                   "--dir",
                                   folder.path.string(),
                                   "--appendonly",
                                   "yes",
                                   "--appendfsync",
                                   "always",
                                   "--save",
                                   "",
                                   "--port",
                                   setup.certificate ? "0" : portText};
  const auto add = [&](std::initializer_list<std::string> words) { command.insert(command.end(), words); };
  if (!setup.password.empty()) add({"--requirepass", setup.password});
  if (setup.certificate)
    add({"--tls-port", portText, "--tls-auth-clients", "no", "--tls-cert-file", setup.certificate->certificate,
         "--tls-key-file", setup.certificate->key, "--tls-ca-cert-file", setup.certificate->certificate});
  program.emplace(command);
  program->waitForLine("Ready to accept connections");
}

}  // namespace mivo::tally::test
