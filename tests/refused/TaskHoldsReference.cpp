// SPDX-License-Identifier: MIT
// error: a task gets copies of values: no pointer, reference, view or observed field
#include <memory>
#include <string>

#include "mivo/model/Record.h"
#include "mivo/store/Effect.h"

struct Action {};
struct State {
  mivo::Observed<std::string> text;
};

template <mivo::RecordOf<State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  visit("text", record.text);
}

mivo::Effect<Action> effect(State& state) {
#ifdef FAULT
  auto&& value = std::ref(state);
#else
  auto&& value = state.text.value();
#endif
  return mivo::Effect<Action>::run([](const auto&...) {}, value);
}
