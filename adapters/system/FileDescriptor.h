// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace mivo::adapters {

/// An open file of the system, closed with its owner; negative where opening failed.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int opened) : descriptor{opened} {}
  FileDescriptor(FileDescriptor&& other) noexcept : descriptor{std::exchange(other.descriptor, -1)} {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(descriptor, other.descriptor);
    return *this;
  }
  ~FileDescriptor() {
    if (descriptor >= 0) ::close(descriptor);
  }

  explicit operator bool() const { return descriptor >= 0; }
  int get() const { return descriptor; }

 private:
  int descriptor = -1;
};

}  // namespace mivo::adapters
