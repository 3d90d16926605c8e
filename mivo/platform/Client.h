// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace mivo {

/// A service that the module is handed by its host: shared, and used from any thread, so its operations are const.
template <class Service>
using Client = std::shared_ptr<const Service>;

}  // namespace mivo
