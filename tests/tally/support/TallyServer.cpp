// SPDX-License-Identifier: MIT
#include "tests/tally_support/TallyServer.h"

#include <algorithm>

namespace mivo::tally::test {
namespace {

std::vector<std::string> commandFor(const std::string& store, const std::vector<std::string>& flags,
                                    std::vector<std::string> command) {
  command.insert(command.end(), {tallyProgram(), "--store", store});
  if (std::ranges::find(flags, "--listen") == flags.end()) command.insert(command.end(), {"--listen", "127.0.0.1:0"});
  command.insert(command.end(), flags.begin(), flags.end());
  return command;
}

}  // namespace

std::string tallyProgram() { return MIVO_TALLY_PROGRAM; }

std::uint16_t portIn(const std::string& line) {
  const auto host = line.find("//");
  return static_cast<std::uint16_t>(std::stoul(line.substr(line.find(':', host) + 1)));
}

TallyServer::TallyServer(const std::string& store, const std::vector<std::string>& flags,
                         const std::vector<std::string>& wrapper)
    : program(commandFor(store, flags, wrapper)), listeningPort(portIn(program.waitForLine("\"listening\""))) {}

}  // namespace mivo::tally::test
