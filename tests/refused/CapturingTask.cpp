// SPDX-License-Identifier: MIT
// error: a task captures nothing: pass what it needs by value
#include <string>

#include "mivo/store/Effect.h"

struct Action {
  std::string id;
};

mivo::Effect<Action> effect(const std::string& id) {
#ifdef FAULT
  return mivo::Effect<Action>::run([id](const mivo::Send<Action>& send, mivo::StopToken) { send(Action{id}); });
#else
  return mivo::Effect<Action>::run(
      [](const mivo::Send<Action>& send, mivo::StopToken, const std::string& own) { send(Action{own}); }, id);
#endif
}
