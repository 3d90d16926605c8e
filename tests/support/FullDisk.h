// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace mivo::tests {

/// To this process the disk is full for as long as it lives: no file may grow.
class FullDisk {
 public:
  FullDisk() {
    ::getrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{1, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &full);
  }
  ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &before); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before{};
};

}  // namespace mivo::tests
