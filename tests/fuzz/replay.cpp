// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Feeds every file of a corpus to the parser once. An empty or missing corpus is a failure: nothing would be tested.
int main(int count, char** arguments) {
  if (count != 2 || !std::filesystem::is_directory(arguments[1])) {
    std::cerr << "usage: " << arguments[0] << " CORPUS_FOLDER\n";
    return 2;
  }
  int replayed = 0;
  for (const auto& entry : std::filesystem::directory_iterator{arguments[1]}) {
    std::ifstream file{entry.path(), std::ios::binary};
    const std::string bytes{std::istreambuf_iterator<char>{file}, {}};
    std::cout << entry.path().filename().string()
              << std::endl;  // flushed: the last name printed is the one that crashed
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++replayed;
  }
  std::cout << replayed << " inputs replayed\n";
  return replayed > 0 ? 0 : 1;
}
