// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <ranges>
#include <string>

#include "host/pages/AboutPage.h"
#include "host/pages/BackupsPage.h"
#include "host/pages/CardSettingsPage.h"
#include "host/pages/ControlWords.h"
#include "host/pages/DateTimeChoice.h"
#include "host/pages/ExportSheet.h"
#include "host/pages/FastSheet.h"
#include "host/pages/FastingPage.h"
#include "host/pages/GoalChoice.h"
#include "host/pages/HealthSheet.h"
#include "host/pages/HistoryPage.h"
#include "host/pages/ImportSheet.h"
#include "host/pages/Message.h"
#include "host/pages/OpenScreens.h"
#include "host/pages/RemindersPage.h"
#include "host/pages/RepairSheet.h"
#include "host/pages/SettingsPage.h"
#include "host/pages/SeveralFastsSheet.h"
#include "host/pages/WeightsPage.h"
#include "mivo/achievements/BadgesPage.h"
#include "mivo/roadmap/FeedbackSheet.h"
#include "mivo/roadmap/RoadmapPage.h"
#include "mivo/statistics/AddWeightForm.h"
#include "mivo/statistics/CardRows.h"
#include "mivo/statistics/Cards.h"
#include "mivo/statistics/DonationsPage.h"
#include "mivo/statistics/GoalWeightSheet.h"

namespace mivo::app {

// The composed records that have types in QML. `writeRecords` writes these types into app/records/Records.h.

template <class... Records>
struct RecordList {};

/// Values: parts of other records, told as a whole. What others hold comes first.
using ValueRecords = RecordList<BadgeFigure, BadgeItem, BadgeFamilyPage, DonationChoice, DonationGroup, RoadmapFilter,
                                RoadmapNotice, host::Choice, host::Steps, host::RingMark>;

/// Objects: cards, pages and sheets. QML is told of each field that differs; a list of records that are no values is a
/// `RecordRows`.
using ObjectRecords =
    RecordList<NoticeCard, SummaryCard, GoalWeightCard, BadgesCard, TimeRangeCard, DayBarsCard, WeightChartCard,
               WeightFastingChartCard, TrendsCard, AddWeightForm, GoalWeightSheet, BadgesPage, DonationsPage,
               RoadmapPage, FeedbackSheet, host::AboutPage, host::BackupsPage, host::CardSettingsPage,
               host::ControlWords, host::DateTimeChoice, host::ExportSheet, host::FastSheet, host::FastingPage,
               host::GoalChoice, host::HealthSheet, host::HistoryPage, host::ImportSheet, host::Message,
               host::OpenScreens, host::RemindersPage, host::RepairSheet, host::RestoreSheet, host::SettingsPage,
               host::SeveralFastsSheet, host::WeightsPage>;

template <class Candidate, class List>
inline constexpr bool isIn = false;
template <class Candidate, class... Records>
inline constexpr bool isIn<Candidate, RecordList<Records...>> = (std::same_as<Candidate, Records> || ...);

template <class Candidate>
concept ValueRecord = isIn<Candidate, ValueRecords>;
template <class Candidate>
concept ObjectRecord = isIn<Candidate, ObjectRecords>;

template <class Field>
concept ListField = std::ranges::range<Field> && !std::same_as<Field, std::string>;
template <ListField Field>
using ElementOf = std::ranges::range_value_t<Field>;

/// A list that has rows of its own.
template <class Field>
concept RowsField = ListField<Field> && !ValueRecord<ElementOf<Field>> && !std::same_as<ElementOf<Field>, std::string>;

template <class Candidate>
inline constexpr bool isOptional = false;
template <class Value>
inline constexpr bool isOptional<std::optional<Value>> = true;

}  // namespace mivo::app
