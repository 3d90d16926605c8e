// SPDX-License-Identifier: MIT
#include "mivo/regressor/BaseRegressor.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace mivo {

void stopRegression(std::string_view sentence) {
  std::fputs((std::string{sentence} + '\n').c_str(), stderr);
  std::abort();
}

}  // namespace mivo
