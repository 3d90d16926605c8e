// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "host/app/Settings.h"
#include "host/reminders/ReminderSettings.h"
#include "mivo/model/Record.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/UserDefaults.h"
#include "mivo/statistics/DashboardSettingsFeature.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/Observed.h"

namespace mivo::host {

/// What the user chooses for the whole app. It is kept in their defaults at once; what the statistics read of it they
/// read there.
struct SettingsFeature {
  struct State {
    Observed<std::optional<int>> firstWeekday = std::optional<int>{};  ///< 1 = Sunday; nothing: the locale decides
    Observed<std::string> language = std::string{};                    ///< its tag; empty: the system decides
    Observed<Appearance> appearance = Appearance{};                    ///< in force
    Observed<AppearanceOverride> given = AppearanceOverride{};
    Observed<ReminderSettings> reminders = ReminderSettings{};
    bool operator==(const State&) const = default;
  };

  struct Cases {
    /// Reads everything anew.
    struct onAppear {
      bool operator==(const onAppear&) const = default;
    };
    /// Of the fasts to come; the one that runs keeps its own.
    struct didChooseGoal {
      std::int64_t seconds;
      bool operator==(const didChooseGoal&) const = default;
    };
    struct didChooseWeightUnit {
      WeightUnit unit;
      bool operator==(const didChooseWeightUnit&) const = default;
    };
    struct didChooseCards {
      DashboardSettingsFeature::State cards;
      bool operator==(const didChooseCards&) const = default;
    };
    struct didChooseCountingEntity {
      StreakSettings::CountingEntity entity;
      bool operator==(const didChooseCountingEntity&) const = default;
    };
    /// Whether fasts below their goal count.
    struct didToggleBelowGoal {
      bool operator==(const didToggleBelowGoal&) const = default;
    };
    struct didChooseLongestBreak {
      std::int64_t hours;
      bool operator==(const didChooseLongestBreak&) const = default;
    };
    struct didChooseFirstWeekday {
      std::optional<int> weekday;
      bool operator==(const didChooseFirstWeekday&) const = default;
    };
    /// It holds from the next start of the program.
    struct didChooseLanguage {
      std::string tag;
      bool operator==(const didChooseLanguage&) const = default;
    };
    struct didChooseAppearanceMode {
      AppearanceMode mode;
      bool operator==(const didChooseAppearanceMode&) const = default;
    };
    struct didChooseTextScale {
      double scale;
      bool operator==(const didChooseTextScale&) const = default;
    };
    struct didToggleReducedMotion {
      bool operator==(const didToggleReducedMotion&) const = default;
    };
    struct didOverrideAppearance {
      AppearanceOverride given;
      bool operator==(const didOverrideAppearance&) const = default;
    };
    struct didToggleGoalReminder {
      bool operator==(const didToggleGoalReminder&) const = default;
    };
    struct didToggleEatingWindowReminder {
      bool operator==(const didToggleEatingWindowReminder&) const = default;
    };
    /// Nothing for one as long as the one before.
    struct didChooseEatingWindow {
      std::optional<std::int64_t> hours;
      bool operator==(const didChooseEatingWindow&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::onAppear, Cases::didChooseGoal, Cases::didChooseWeightUnit, Cases::didChooseCards,
                     Cases::didChooseCountingEntity, Cases::didToggleBelowGoal, Cases::didChooseLongestBreak,
                     Cases::didChooseFirstWeekday, Cases::didChooseLanguage, Cases::didChooseAppearanceMode,
                     Cases::didChooseTextScale, Cases::didToggleReducedMotion, Cases::didOverrideAppearance,
                     Cases::didToggleGoalReminder, Cases::didToggleEatingWindowReminder, Cases::didChooseEatingWindow> {
    using variant::variant;
  };

  Client<UserDefaults> userDefaults;
  Client<UserDefaults> appGroupUserDefaults;  ///< of which the app's extensions see the streaks
  /// Has the weeks of the calendar begin on another day at once; nothing for the locale's.
  std::function<void(std::optional<int>)> chooseFirstWeekday = {};

  Effect<Action> reduce(State& state, const Action& action) const;

 private:
  void on(State& state, const Action::onAppear& sent) const;
  void on(State& state, const Action::didChooseGoal& sent) const;
  void on(State& state, const Action::didChooseWeightUnit& sent) const;
  void on(State& state, const Action::didChooseCards& sent) const;
  void on(State& state, const Action::didChooseCountingEntity& sent) const;
  void on(State& state, const Action::didToggleBelowGoal& sent) const;
  void on(State& state, const Action::didChooseLongestBreak& sent) const;
  void on(State& state, const Action::didChooseFirstWeekday& sent) const;
  void on(State& state, const Action::didChooseLanguage& sent) const;
  void on(State& state, const Action::didChooseAppearanceMode& sent) const;
  void on(State& state, const Action::didChooseTextScale& sent) const;
  void on(State& state, const Action::didToggleReducedMotion& sent) const;
  void on(State& state, const Action::didOverrideAppearance& sent) const;
  void on(State& state, const Action::didToggleGoalReminder& sent) const;
  void on(State& state, const Action::didToggleEatingWindowReminder& sent) const;
  void on(State& state, const Action::didChooseEatingWindow& sent) const;
};

/// Whether it changes what the statistics show; else how the app looks, or whom it tells.
bool isReadByStatistics(const SettingsFeature::Action& action);

/// Whether it changes what the user is told of while they do not look.
bool isOfReminders(const SettingsFeature::Action& action);

template <RecordOf<SettingsFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [firstWeekday, language, appearance, given, reminders] = record;
  visit("firstWeekday", firstWeekday);
  visit("language", language);
  visit("appearance", appearance);
  visit("given", given);
  visit("reminders", reminders);
}

}  // namespace mivo::host
