// SPDX-License-Identifier: MIT
#include "tally/server/FileContent.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace mivo::tally {

std::string contentOf(const std::filesystem::path& file, std::size_t most) {
  std::ifstream in{file, std::ios::binary};
  if (!in) throw std::runtime_error(std::strerror(errno));
  std::string content;
  std::array<char, std::size_t{64} << 10> piece;
  do {
    in.read(piece.data(), piece.size());
    content.append(piece.data(), static_cast<std::size_t>(in.gcount()));
    if (content.size() > most) throw std::runtime_error("is larger than " + std::to_string(most >> 20U) + " MiB");
  } while (in);
  if (in.bad()) throw std::runtime_error("cannot be read to its end");
  return content;
}

}  // namespace mivo::tally
