// SPDX-License-Identifier: MIT
#pragma once
#include <cstddef>
#include <cstdint>

namespace mivo::tally {

/// Of numbers that strangers choose, whole networks of addresses say: which of them fall together differs in each
/// object, so nobody can choose those that do.
struct SeededHash {
  SeededHash();
  std::size_t operator()(std::uint64_t number) const;
  std::uint64_t seed;
};

}  // namespace mivo::tally
