// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>

#include "tests/tally_support/ChildProcess.h"

namespace mivo::tally::test {

/// The path of the program under test.
std::string tallyProgram();

/// The port in a line of the log that names an IPv4 address, "http://127.0.0.1:8787".
std::uint16_t portIn(const std::string& line);

/// `mivo-tally` on a free port of this machine, where the flags do not say `--listen`, started through the wrapper's
/// words where there are any. It listens when the constructor returns.
class TallyServer {
 public:
  explicit TallyServer(const std::string& store,
                       const std::vector<std::string>& flags = {"--votes-per-minute", "0", "--votes-per-day", "0"},
                       const std::vector<std::string>& wrapper = {});

  std::uint16_t port() const { return listeningPort; }
  ChildProcess& process() { return program; }

 private:
  ChildProcess program;
  std::uint16_t listeningPort;
};

}  // namespace mivo::tally::test
