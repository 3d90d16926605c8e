// SPDX-License-Identifier: MIT
#pragma once

namespace mivo::app {

/// From now on whatever Qt or the app's QML has to warn of fails the test that runs, and is printed as before.
void failOnWarnings();

}  // namespace mivo::app
