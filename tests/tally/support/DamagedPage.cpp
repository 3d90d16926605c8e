// SPDX-License-Identifier: MIT
#include "tests/tally_support/DamagedPage.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace mivo::tally::test {

void damagePageWith(const std::string& file, std::string_view text) {
  constexpr std::size_t pageSize = 4096;
  std::fstream bytes{file, std::ios::in | std::ios::out | std::ios::binary};
  const std::string all{std::istreambuf_iterator<char>{bytes}, {}};
  const auto found = all.find(text);
  if (found == std::string::npos) throw std::runtime_error(file + ": has no " + std::string{text});
  bytes.clear();
  bytes.seekp(static_cast<std::streamoff>(found / pageSize * pageSize));
  bytes << std::string(pageSize, '\xff');
}

}  // namespace mivo::tally::test
