// SPDX-License-Identifier: MIT
#include "CardModels.h"
