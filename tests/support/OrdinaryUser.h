// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace mivo::tests {

/// Root may write wherever it likes; from here on this thread, and those that it begins, may no more than any other
/// user.
inline void becomeOrdinaryUser() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct none[2]{};
  ASSERT_EQ(::syscall(SYS_capset, &header, none), 0);
}

}  // namespace mivo::tests
