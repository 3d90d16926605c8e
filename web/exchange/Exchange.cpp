// SPDX-License-Identifier: MIT
#include "web/exchange/Exchange.h"

#include <cstdlib>

namespace mivo::web {

const Answer* answer(Made made) {
  static std::string kept;
  static Answer given;
  kept = made ? std::move(*made) : std::move(made.error());
  given = {kept.data(), kept.size(), !made.has_value()};
  return &given;
}

}  // namespace mivo::web

extern "C" {

[[clang::export_name("allocate")]] void* mivoAllocate(std::size_t size) { return std::malloc(size); }
[[clang::export_name("release")]] void mivoRelease(void* memory) { std::free(memory); }

/// Makes room for a text that an import gives.
[[clang::export_name("room")]] char* mivoRoom(std::string* text, std::size_t size) {
  text->resize(size);
  return text->data();
}
}
