// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// What JavaScript gives: functions of the module "mivo" of its imports. A text goes out as an address and a size, in
// UTF-8; one comes back into `into`, whose room JavaScript asks for with the exported function `room`.

extern "C" {

[[clang::import_module("mivo"), clang::import_name("wholeNumber")]]
void importedWholeNumber(std::string* into, std::int64_t number);
[[clang::import_module("mivo"), clang::import_name("number")]]
void importedNumber(std::string* into, double number, std::int32_t fractionDigits);
[[clang::import_module("mivo"), clang::import_name("quantity")]]
void importedQuantity(std::string* into, double number, std::int32_t unit, std::int32_t fractionDigits);
[[clang::import_module("mivo"), clang::import_name("joined")]]
void importedJoined(std::string* into, const char* first, std::size_t firstSize, const char* second,
                    std::size_t secondSize);

/// A wall-clock time as milliseconds since 1970, as if it were UTC. Whether there is such a text.
[[clang::import_module("mivo"), clang::import_name("date")]]
bool importedDate(std::string* into, double wallMilliseconds, const char* skeleton, std::size_t skeletonSize);
[[clang::import_module("mivo"), clang::import_name("interval")]]
bool importedInterval(std::string* into, double firstMilliseconds, double lastMilliseconds);

[[clang::import_module("mivo"), clang::import_name("text")]]
void importedText(std::string* into, const char* key, std::size_t keySize, const char* context,
                  std::size_t contextSize);
[[clang::import_module("mivo"), clang::import_name("plural")]]
void importedPlural(std::string* into, const char* one, std::size_t oneSize, const char* many, std::size_t manySize,
                    double count);
}
