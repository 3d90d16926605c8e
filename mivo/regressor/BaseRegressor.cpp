// SPDX-License-Identifier: MIT
#include "mivo/regressor/BaseRegressor.h"

#include <cstdlib>
#include <iostream>

namespace mivo {

void stopRegression(std::string_view sentence) {
  std::cerr << sentence << std::endl;
  std::abort();
}

}  // namespace mivo
