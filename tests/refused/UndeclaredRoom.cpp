// SPDX-License-Identifier: MIT
// error: mivo/charts/Geometry.h: No such file
// error: 'mivo/charts/Geometry.h' file not found
#include "mivo/model/Fasts.h"
#ifdef FAULT
#include "mivo/charts/Geometry.h"
#endif
