// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <variant>

#include "mivo/charts/ChartDataEntry.h"
#include "mivo/charts/Geometry.h"
#include "mivo/model/ChartTimeUnit.h"
#include "mivo/model/Record.h"
#include "mivo/store/Effect.h"
#include "mivo/store/IdentifiedArray.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// A row of day bars that scrolls sideways. A tap on a bar selects it and shows its duration in a popup; a second tap
/// clears the selection. The views report where things are drawn, in points; where the popup stands follows from that.
struct ScrollChartFeature {
  /// The start of each period that is drawn, and the horizontal middle of its bar, measured from `barWidth - 2` points
  /// before the plot's leading edge: from there a popup that spans two bars is centred on its own.
  using VisibleDays = std::map<Date, double>;

  struct State {
    struct PopupViewState {
      double popupXOffset = 0;  ///< its leading edge, from the plot's
      double popupYOffset = 0;  ///< its top edge, see popupYOffset in BarGeometry.h
      std::string popupLabel;
      double popupWidth = 0;
      bool operator==(const PopupViewState&) const = default;
    };

    Observed<ChartTimeUnit> chartTimeUnit;
    Observed<IdentifiedArray<ChartDataEntry>> data;
    Observed<double> maxTime;  ///< the seconds of a bar of value 1
    Observed<Date> now;        ///< when the bars were summed
    Observed<Size> chartSize = Size{};
    Observed<std::optional<double>> scrollViewMidX = std::optional<double>{};
    Observed<VisibleDays> visibleDays = VisibleDays{};
    Observed<std::optional<UUID>> selectedUUID = std::optional<UUID>{};

    /// The popup of the selected bar, as text and place; none where no bar of the data is selected, or where it is not
    /// drawn just now. The first bar's popup starts at the plot's edge wherever its bar is. Takes the duration
    /// formatters of the current dependencies.
    std::optional<PopupViewState> popupViewState() const;

    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct didTapBar {
      UUID id;
      bool operator==(const didTapBar&) const = default;
    };
    struct didUpdateSize {
      Size size;
      bool operator==(const didUpdateSize&) const = default;
    };
    struct didUpdateMidX {
      double midX;
      bool operator==(const didUpdateMidX&) const = default;
    };
    struct didUpdateVisibleDays {
      VisibleDays visibleDays;
      bool operator==(const didUpdateVisibleDays&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::didTapBar, Cases::didUpdateSize, Cases::didUpdateMidX, Cases::didUpdateVisibleDays> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const;
};

/// The frame of one bar of a chart, in points.
double barWidth(const ScrollChartFeature::State& state);

template <RecordOf<ScrollChartFeature::State::PopupViewState> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [popupXOffset, popupYOffset, popupLabel, popupWidth] = record;
  visit("popupXOffset", popupXOffset);
  visit("popupYOffset", popupYOffset);
  visit("popupLabel", popupLabel);
  visit("popupWidth", popupWidth);
}

template <RecordOf<ScrollChartFeature::State> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [chartTimeUnit, data, maxTime, now, chartSize, scrollViewMidX, visibleDays, selectedUUID] = record;
  visit("chartTimeUnit", chartTimeUnit);
  visit("data", data);
  visit("maxTime", maxTime);
  visit("now", now);
  visit("chartSize", chartSize);
  visit("scrollViewMidX", scrollViewMidX);
  visit("visibleDays", visibleDays);
  visit("selectedUUID", selectedUUID);
}

}  // namespace mivo
