// SPDX-License-Identifier: MIT
#include "web/drawing/Exchange.h"

#include <cstdlib>
#include <exception>
#include <typeinfo>
#include <utility>

extern "C" {

[[clang::import_module("mivo"), clang::import_name("textWidth")]]
double importedTextWidth(std::int32_t font, const char* text, std::size_t size);

[[clang::export_name("allocate")]] void* mivoAllocate(std::size_t size) { return std::malloc(size); }
[[clang::export_name("release")]] void mivoRelease(void* memory) { std::free(memory); }
}

namespace mivo::web {

const Answer* answer(std::vector<double> numbers, std::string text) {
  static std::vector<double> keptNumbers;
  static std::string keptText;
  static Answer given;
  keptNumbers = std::move(numbers);
  keptText = std::move(text);
  given = {keptNumbers.data(), keptNumbers.size(), keptText.data(), keptText.size()};
  return &given;
}

const Answer* answer(std::initializer_list<double> numbers, std::string text) {
  return answer(std::vector<double>{numbers}, std::move(text));
}

drawing::TextWidth widthIn(Font font) {
  return [font](std::string_view text) {
    return importedTextWidth(static_cast<std::int32_t>(font), text.data(), text.size());
  };
}

std::vector<std::string> texts(const char* joined, std::size_t size) {
  std::vector<std::string> all;
  std::string_view rest{joined, size};
  while (!rest.empty()) {
    const std::size_t end = rest.find('\0');
    all.emplace_back(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return all;
}

}  // namespace mivo::web

// The library's own would bring in all that exceptions stand on, down to what spells their names. What would throw ends
// the module instead, and so does memory that cannot be had: the page goes on without the picture.
void* operator new(std::size_t size) {
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) __builtin_trap();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

extern "C" {
void* __cxa_allocate_exception(std::size_t) noexcept { __builtin_trap(); }
void __cxa_free_exception(void*) noexcept {}
[[noreturn]] void __cxa_throw(void*, std::type_info*, void (*)(void*)) { __builtin_trap(); }
void* __cxa_begin_catch(void*) noexcept { __builtin_trap(); }
void __cxa_end_catch() {}
[[noreturn]] void abort_message(const char*, ...) { __builtin_trap(); }
}
[[noreturn]] void std::terminate() noexcept { __builtin_trap(); }
