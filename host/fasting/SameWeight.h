// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "mivo/model/BodyWeightSample.h"
#include "mivo/platform/Formatters.h"

namespace mivo::host {

/// The weight that stands for this one already: of the same minute, and the same as it is shown in a unit. Nothing
/// where there is none. `weights` are by date. Whoever saves twice means one weight.
const BodyWeightSample* sameWeight(std::span<const BodyWeightSample> weights, const BodyWeightSample& sample,
                                   WeightUnit unit, const MassFormatter& masses);

}  // namespace mivo::host
