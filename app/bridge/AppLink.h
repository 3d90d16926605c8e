// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "host/app/AppFeature.h"
#include "mivo/pages/PageClients.h"

namespace mivo::app {

using AppState = host::AppFeature::State;
using AppAction = host::AppFeature::Action;

/// The ways between a page's model and the app.
struct AppLink {
  std::function<PageClients()> clients;    ///< what a page is composed with just now
  std::function<const AppState&()> state;  ///< as it is just now
  std::function<void(AppAction)> send;     ///< takes what the user does
};

}  // namespace mivo::app
