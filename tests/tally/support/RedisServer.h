// SPDX-License-Identifier: MIT
#pragma once
#include <optional>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/Certificate.h"
#include "tests/tally_support/ChildProcess.h"

namespace mivo::tally::test {

/// A Redis on a free port with an append-only file that is flushed at each write. Where the program is not installed
/// the constructor throws, and the test fails: it is never left out silently.
class RedisServer {
 public:
  struct Setup {
    std::string password;
    std::optional<CertificateFiles> certificate;  // TLS where there is one
  };

  RedisServer() : RedisServer(Setup{}) {}
  explicit RedisServer(const Setup& wanted);

  /// As --store takes it.
  std::string address(int database = 0) const;
  ChildProcess& process() { return *program; }
  /// After it was killed: the same port, the same file.
  void restart();

 private:
  void start();

  tests::TemporaryFolder folder;
  Setup setup;
  int port = 0;
  std::optional<ChildProcess> program;
};

}  // namespace mivo::tally::test
