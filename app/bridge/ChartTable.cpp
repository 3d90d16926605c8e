// SPDX-License-Identifier: MIT
#include "ChartTable.h"
