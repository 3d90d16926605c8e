// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/text/TextWidth.h"

// What the module and JavaScript hand each other: numbers as they are, lists of numbers and texts through memory. Each
// function that is exported answers with the address of an `Answer`, which lasts until the next one.

namespace mivo::web {

/// Sixteen bytes that JavaScript reads.
struct Answer {
  const double* numbers;
  std::size_t count;
  const char* text;
  std::size_t size;
};

const Answer* answer(std::initializer_list<double> numbers, std::string text = {});
const Answer* answer(std::vector<double> numbers, std::string text = {});

/// The fonts of charts, by their places in JavaScript's list.
enum class Font : std::int32_t { axis, axisStrong, caption, value, valueSmall };

/// How wide a text is in a font, as the browser measures it.
drawing::TextWidth widthIn(Font font);

/// Texts that came joined by a byte of 0, each with one behind it.
std::vector<std::string> texts(const char* joined, std::size_t size);

inline std::span<const double> numbers(const double* first, std::size_t count) { return {first, count}; }

}  // namespace mivo::web
