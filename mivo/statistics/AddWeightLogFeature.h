// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "mivo/model/BodyWeightSample.h"
#include "mivo/model/Record.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/store/Effect.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// The card that takes a weight in: a field with minus and plus beside it, a date, a button.
///
/// The weights are the host's. A tap on Save that counts is followed by one `didAcceptSample`; the host's parent
/// reducer writes that sample and answers once, with `didSave` or `didFailToSave`. Any other tap writes nothing.
struct AddWeightLogFeature {
  enum class SavingState { notSaved, saving, saved, failed };
  enum class Problem { notAWeight, dateInFuture };

  struct State {
    Observed<double> weightInKg = 65.0;
    Observed<Date> logDate = dependency(&Dependencies::date)->now();
    Observed<bool> isDateChosen = false;  ///< else `logDate` is the time of saving, which the host moves on until then
    Observed<SavingState> savingState = SavingState::notSaved;
    Observed<WeightUnit> weightUnit = WeightUnit::kilograms;
    Observed<std::optional<std::string>> typedText = std::nullopt;  ///< while it was not read as a weight yet
    Observed<std::optional<Problem>> problem = std::nullopt;        ///< why the last tap on Save was refused
    Observed<std::string> failure = std::string{};                  ///< what the host said when saving failed
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct didChangeText {
      std::string text;
      bool operator==(const didChangeText&) const = default;
    };
    struct didTapIncrease {
      bool operator==(const didTapIncrease&) const = default;
    };
    struct didTapDecrease {
      bool operator==(const didTapDecrease&) const = default;
    };
    struct didChangeDate {
      Date date;
      bool operator==(const didChangeDate&) const = default;
    };
    struct didChangeUnit {
      WeightUnit unit;
      bool operator==(const didChangeUnit&) const = default;
    };
    struct didTapSave {
      bool operator==(const didTapSave&) const = default;
    };
    /// The card's own: the host writes this sample.
    struct didAcceptSample {
      BodyWeightSample sample;
      bool operator==(const didAcceptSample&) const = default;
    };
    struct didSave {
      bool operator==(const didSave&) const = default;
    };
    struct didFailToSave {
      std::string reason;  ///< one sentence for the user
      bool operator==(const didFailToSave&) const = default;
    };
  };
  struct Action : Cases,
                  std::variant<Cases::didChangeText, Cases::didTapIncrease, Cases::didTapDecrease, Cases::didChangeDate,
                               Cases::didChangeUnit, Cases::didTapSave, Cases::didAcceptSample, Cases::didSave,
                               Cases::didFailToSave> {
    using variant::variant;
  };

  Client<DateGenerator> date = dependency(&Dependencies::date);
  Client<UUIDGenerator> uuid = dependency(&Dependencies::uuid);

  Effect<Action> reduce(State& state, const Action& action) const;
};

template <RecordOf<AddWeightLogFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [weightInKg, logDate, isDateChosen, savingState, weightUnit, typedText, problem, failure] = record;
  visit("weightInKg", weightInKg);
  visit("logDate", logDate);
  visit("isDateChosen", isDateChosen);
  visit("savingState", savingState);
  visit("weightUnit", weightUnit);
  visit("typedText", typedText);
  visit("problem", problem);
  visit("failure", failure);
}

}  // namespace mivo
