// SPDX-License-Identifier: MIT
#include "cli/usage/Usage.h"

#include <algorithm>
#include <sstream>
#include <string>

#include "cli/terminal/StandardOutput.h"

namespace mivo::cli {

int answer(const CLI::App& program, const CLI::ParseError& parsed, const char* hint) {
  if (parsed.get_exit_code() == 0) {
    std::ostringstream out, unused;
    program.exit(parsed, out, unused);
    const auto fault = writeOutput(out.str());
    if (fault) complain(*fault);
    return fault ? atFault : 0;
  }
  std::string sentence = parsed.what();
  sentence.resize(std::min(sentence.find('\n'), sentence.size()));
  complain(sentence + " (" + hint + ")");
  return wrongUsage;
}

}  // namespace mivo::cli
