// SPDX-License-Identifier: MIT
// The card of one kind, made when it comes on screen.
import QtQuick
import Mivo

Item {
    id: root

    required property int index
    required property string kind
    required property QtObject card
    /// How many cards of the page fit beside each other.
    property int columns: 1
    readonly property bool wide: columns === 3
    readonly property int span: App.screen.count > 0 ? App.screen.columnSpan(index, columns) : 6
    readonly property bool beside: span < 6
    /// Where the cards begin in the page.
    property real pageTop: 0
    /// Below what a window that opens can show: made when there is time, after the first frame.
    property bool late: false

    signal tableWanted(chart: ChartTable, title: string)
    signal pickerMade(picker: TimeRangePicker)

    // What is still being made lies at the top until the grid knows its height.
    visible: loader.status === Loader.Ready
    implicitHeight: loader.item ? (loader.item as Item).implicitHeight : 0

    Loader {
        id: loader
        width: parent.width
        height: parent.height
        // On wide windows the picker stands in the title row.
        active: !(root.wide && root.kind === "timeRange")
        asynchronous: root.late
        sourceComponent: {
            switch (root.kind) {
            case "tip":
                return tip;
            case "start":
                return start;
            case "configure":
                return configure;
            case "summary":
                return summary;
            case "overlappingFasts":
                return overlap;
            case "donation":
                return donation;
            case "roadmap":
                return roadmap;
            case "healthData":
                return health;
            case "addWeight":
                return addWeight;
            case "goalWeight":
                return goalWeight;
            case "badges":
                return badges;
            case "timeRange":
                return timeRange;
            case "fastingChart":
                return fastingChart;
            case "eatingChart":
                return eatingChart;
            case "weightChart":
                return weightChart;
            case "weightFastingChart":
                return weightFastingChart;
            default:
                return trends;
            }
        }
    }

    // A Loader of Qt 6.4 refuses components that are bound to their file, so qmllint cannot know what root is.
    // qmllint disable unqualified
    Component { id: tip; TipCard { card: root.card as NoticeCardRecord; onDismissed: App.dismissTip() } }
    Component { id: start; StartCard { card: root.card as NoticeCardRecord; onStartTapped: { App.fasting.start(); App.present("fasting"); } } }
    Component { id: configure; ConfigureCard { card: root.card as NoticeCardRecord; onSettingsTapped: App.present("cards") } }
    Component { id: summary; SummaryCard { card: root.card as SummaryCardRecord; wide: root.wide } }
    Component { id: overlap; NoticeCard { card: root.card as NoticeCardRecord; iconName: "warning"; isCaution: true; onTapped: App.present("overlaps") } }
    Component { id: donation; TileCard { card: root.card as NoticeCardRecord; iconName: "heart"; onClicked: App.present("donations") } }
    Component { id: roadmap; TileCard { card: root.card as NoticeCardRecord; iconName: "feedback"; onClicked: App.present("roadmap") } }
    Component { id: health; NoticeCard { card: root.card as NoticeCardRecord; iconName: "health"; onTapped: App.health.chooseFile() } }
    Component { id: addWeight; AddWeightCard { card: root.card as NoticeCardRecord; entry: App.addWeight; inRow: root.span === 2; onDateTapped: App.present("date") } }
    Component { id: goalWeight; GoalWeightCard { card: root.card as GoalWeightCardRecord; onClicked: App.present("goalWeight"); onWeightsWanted: App.present("weights") } }
    Component { id: badges; BadgesCard { card: root.card as BadgesCardRecord; onClicked: App.present("badges") } }
    Component { id: timeRange; TimeRangePicker {
            card: root.card as TimeRangeCardRecord
            slotTop: root.y + root.pageTop
            onChosen: index => App.chooseTimeRange(index)
            Component.onCompleted: root.pickerMade(this)
        } }
    Component { id: fastingChart; DayBarsCard { card: root.card as DayBarsCardRecord; chart: App.fastingChart; accent: Theme.fasting; chartHeight: 200; onTableWanted: root.tableWanted(App.fastingChart, card.title) } }
    Component { id: eatingChart; DayBarsCard { card: root.card as DayBarsCardRecord; chart: App.eatingChart; accent: Theme.eating; chartHeight: root.beside ? 200 : 160; onTableWanted: root.tableWanted(App.eatingChart, card.title) } }
    Component { id: weightChart; WeightChartCard { card: root.card as WeightChartCardRecord; chart: App.weightChart; wide: root.wide; onTableWanted: root.tableWanted(App.weightChart, card.title); onWeightsWanted: App.present("weights") } }
    Component { id: weightFastingChart; WeightFastingCard { card: root.card as WeightFastingChartCardRecord; chart: App.weightFastingChart; wide: root.wide; onTableWanted: root.tableWanted(App.weightFastingChart, card.title) } }
    Component { id: trends; TrendsCard { card: root.card as TrendsCardRecord; wide: root.wide } }
}
