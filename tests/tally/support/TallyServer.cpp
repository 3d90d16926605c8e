// SPDX-License-Identifier: MIT
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

std::vector<std::string> commandFor(const std::string& store, const std::vector<std::string>& flags,
                                    std::vector<std::string> command) {
  command.insert(command.end(), {tallyProgram(), "--listen", "127.0.0.1:0", "--store", store});
  command.insert(command.end(), flags.begin(), flags.end());
  return command;
}

}  // namespace

std::string tallyProgram() { return MIVO_TALLY_PROGRAM; }

std::uint16_t portIn(const std::string& line) {
  constexpr std::string_view before = "127.0.0.1:";
  return static_cast<std::uint16_t>(std::stoul(line.substr(line.find(before) + before.size())));
}

TallyServer::TallyServer(const std::string& store, const std::vector<std::string>& flags,
                         const std::vector<std::string>& wrapper)
    : program(commandFor(store, flags, wrapper)), listeningPort(portIn(program.waitForLine("\"listening\""))) {}

}  // namespace mivo::tally::test
