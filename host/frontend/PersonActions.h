// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>
#include <variant>

#include "host/frontend/PageAction.h"
#include "host/json/RecordJson.h"

namespace mivo::host {

// What a person can do, feature by feature. Nothing else comes in from outside: what tasks found, what the screen does
// of its own, and what is kept in files and settings as it came is for the program alone.

/// What a page sends: an action of the app, or one that only the pages understand.
using PersonAction = std::variant<AppFeature::Action, PageAction::Action>;

template <>
struct ListedCases<AppFeature::Action> {
  using App = AppFeature::Cases;
  using Type =
      JsonCases<App::statistics, App::didOpen, App::didClose, App::didGoBack, App::didTapStart, App::didTapStop,
                App::didChangeStart, App::didChangeGoal, App::didTapEditFast, App::didTapAddFast,
                App::didChangeDraftStart, App::didChangeDraftEnd, App::didChangeDraftGoal, App::didChangeDraftNote,
                App::didTapSaveDraft, App::didDismissDraft, App::didDeleteFast, App::didTapEditWeight,
                App::editedWeight, App::didDeleteWeight, App::didConfirmOverlapRepair, App::didCancelOverlapRepair,
                App::didChooseFiles, App::didTypeFasts, App::importing, App::didSwitchPrintedWeights, App::didExport,
                App::backups, App::health, App::settings, App::didTapMessage, App::didDismissMessages>;
};

template <>
struct ListedCases<StatisticsFeature::Action> {
  using Screen = StatisticsFeature::Cases;
  using Type =
      JsonCases<Screen::binding, Screen::fastingChartAction, Screen::eatingChartAction, Screen::addWeightLogAction,
                Screen::goalWeightCardAction, Screen::destination, Screen::onAppear, Screen::didTapOpenBadges,
                Screen::didTapOpenRoadmap, Screen::didTapOpenDonations, Screen::didTapFixOverlappingFasts,
                Screen::requestHealthKitAccess>;
};

template <>
struct ListedCases<StatisticsFeature::Destination::Action> {
  using Open = StatisticsFeature::Destination::Cases;
  using Type = JsonCases<Open::badges, Open::donations>;
};

/// The lists of badges do nothing.
template <>
struct ListedCases<BadgeSummaryFeature::Destination::Action> {
  using Type = JsonCases<>;
};

template <>
struct ListedCases<DonationsFeature::Action> {
  using Sheet = DonationsFeature::Cases;
  using Type = JsonCases<Sheet::didChooseProduct, Sheet::didTapButton, Sheet::didTapProduct>;
};

template <>
struct ListedCases<AddWeightLogFeature::Action> {
  using Card = AddWeightLogFeature::Cases;
  using Type = JsonCases<Card::didChangeText, Card::didTapIncrease, Card::didTapDecrease, Card::didChangeDate,
                         Card::didChangeUnit, Card::didTapSave>;
};

template <>
struct ListedCases<ImportFeature::Action> {
  using Type = JsonCases<ImportFeature::Cases::didAnswer, ImportFeature::Cases::didTapImport>;
};

template <>
struct ListedCases<BackupsFeature::Action> {
  using Page = BackupsFeature::Cases;
  using Type =
      JsonCases<Page::didTapBackUp, Page::didChooseFolder, Page::didChoose, Page::didDismiss, Page::didTapRestore>;
};

template <>
struct ListedCases<HealthFeature::Action> {
  using Type = JsonCases<HealthFeature::Cases::didLink, HealthFeature::Cases::didUnlink>;
};

/// What is chosen from a list comes by its place there, see `PageAction`.
template <>
struct ListedCases<SettingsFeature::Action> {
  using Page = SettingsFeature::Cases;
  using Type = JsonCases<Page::didChooseGoal, Page::didToggleBelowGoal, Page::didToggleReducedMotion,
                         Page::didToggleGoalReminder, Page::didToggleEatingWindowReminder>;
};

template <>
struct ListedCases<RoadmapListFeature::Action> {
  using Page = RoadmapListFeature::Cases;
  using Type = JsonCases<Page::didTapTryAgain, Page::didTapStatus, Page::didTapVote>;
};

}  // namespace mivo::host
