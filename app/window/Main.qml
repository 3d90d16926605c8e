// SPDX-License-Identifier: MIT
// The window: a page with tabs below, or beside it where there is room, and what is presented over it.
import QtQuick
import QtQuick.Window
import Mivo

Window {
    id: root

    property string tab: "statistics"
    /// What is open over the page when the window appears.
    property string screen
    /// The list of weights is shown.
    property bool weights: false
    readonly property bool side: width >= Theme.sideBarWidth
    readonly property list<string> tabs: ["fasting", "statistics", "settings"]
    readonly property list<string> names: [Words.fasting, Words.statistics, Words.settings]
    /// What the window needs to show the statistics whole.
    readonly property real wholeHeight: statistics.wholeHeight + (side ? 0 : Theme.tabBarSize)

    width: 390
    height: 844
    minimumWidth: 320
    minimumHeight: 480
    visible: true
    title: "Mivo"
    color: Theme.background
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Component.onCompleted: present(screen)

    /// Opens one of the screens by its name, in place of what is open; none for an empty name.
    function present(name: string) {
        if (fasting.item)
            (fasting.item as FastingPage).present("");
        if (settings.item)
            (settings.item as SettingsPage).present("");
        App.settings.page = "";
        App.dismiss();
        App.repair.cancel();
        App.weights.dismissEdited();
        weights = false;
        for (const sheet of [feedback, goalWeight, table, weightDate])
            sheet.close();
        switch (name) {
        case "statistics":
            tab = "statistics";
            return;
        case "fasting":
        case "editFast":
        case "addFast":
        case "fastGoal":
        case "fastStart":
        case "fastMenu":
        case "months":
            tab = "fasting";
            return (fasting.item as FastingPage).present(name);
        case "settings":
        case "defaultGoal":
        case "weightUnit":
        case "firstWeekday":
        case "language":
        case "appearance":
            tab = "settings";
            return (settings.item as SettingsPage).present(name);
        case "cards":
        case "about":
            tab = "settings";
            App.settings.page = name;
            return;
        case "badges":
            return App.openBadges();
        case "milestones":
            App.openBadges();
            return App.badges.openMilestones();
        case "streaks":
            App.openBadges();
            return App.badges.openStreaks();
        case "roadmap":
            return App.openRoadmap();
        case "feedback":
            App.openRoadmap();
            return feedback.open();
        case "donations":
            return App.openDonations();
        case "overlaps":
            return App.fixOverlaps();
        case "goalWeight":
            return goalWeight.open();
        case "weights":
            weights = true;
            return;
        case "editWeight":
            weights = true;
            return App.weights.edit(0);
        case "date":
            return weightDate.open();
        case "table":
            return showTable(App.fastingChart, names[0]);
        }
    }

    function showTable(chart: ChartTable, title: string) {
        table.active = true;
        (table.sheet as TableSheet).table = chart;
        table.sheet.title = title;
        table.open();
    }

    Shortcut { sequence: "Ctrl+Q"; onActivated: Qt.quit() }
    Shortcut { sequence: "Ctrl+W"; onActivated: root.close() }
    Shortcut {
        sequence: "Ctrl+Z"
        enabled: App.message.button !== "" && !App.message.isFailure
        onActivated: App.pressMessage()
    }
    Shortcut { sequence: "Ctrl+1"; onActivated: root.present(root.tabs[0]) }
    Shortcut { sequence: "Ctrl+2"; onActivated: root.present(root.tabs[1]) }
    Shortcut { sequence: "Ctrl+3"; onActivated: root.present(root.tabs[2]) }

    Item {
        id: pages

        readonly property bool covered: badgesLayer.covers || roadmapLayer.covers || weightsLayer.covers || cardsLayer.covers || aboutLayer.covers

        anchors.fill: parent
        anchors.leftMargin: root.side ? Theme.sideBarSize : 0

        Item {
            anchors.fill: parent
            anchors.bottomMargin: root.side ? 0 : Theme.tabBarSize
            visible: !pages.covered
            enabled: (App.destination === "" || App.destination === "donations") && App.settings.page === "" && !root.weights

            Loader {
                id: fasting
                anchors.fill: parent
                visible: root.tab === "fasting"
                active: root.tab === "fasting" || status === Loader.Ready // also below a page that covers it
                focus: visible
                sourceComponent: FastingPage { focus: true }
            }

            StatisticsPage {
                id: statistics
                anchors.fill: parent
                visible: root.tab === "statistics"
                wide: root.side
                focus: visible
                onStartWanted: {
                    App.fasting.start();
                    root.tab = "fasting";
                }
                onSettingsWanted: root.present("cards")
                onGoalWanted: goalWeight.open()
                onWeightsWanted: root.weights = true
                onDateWanted: weightDate.open()
                onTableWanted: (chart, name) => root.showTable(chart, name)
                // What was changed on other tabs is seen on return.
                onVisibleChanged: {
                    if (visible)
                        App.appear();
                }
            }

            Loader {
                id: settings
                anchors.fill: parent
                visible: root.tab === "settings"
                active: root.tab === "settings" || status === Loader.Ready // also below a page that covers it
                focus: visible
                sourceComponent: SettingsPage { focus: true }
            }
        }

        TabBar {
            visible: !root.side && !pages.covered
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.tabBarSize
            tabs: root.tabs
            names: root.names
            chosen: root.tab
            onTapped: tab => root.choose(tab)
        }

        PushLayer {
            id: badgesLayer
            anchors.fill: parent
            open: App.destination === "badges"
            page: BadgesPage { onBack: App.dismiss() }
        }

        PushLayer {
            id: roadmapLayer
            anchors.fill: parent
            open: App.destination === "roadmap"
            page: RoadmapPage {
                roadmap: App.roadmap
                onBack: App.dismiss()
            }
        }

        Connections {
            target: roadmapLayer.shown as RoadmapPage
            function onFeedbackWanted() {
                feedback.open();
            }
        }

        PushLayer {
            id: weightsLayer
            anchors.fill: parent
            open: root.weights
            page: WeightsPage {}
        }

        Connections {
            target: weightsLayer.shown as WeightsPage
            function onBack() {
                root.weights = false;
            }
        }

        PushLayer {
            id: cardsLayer
            anchors.fill: parent
            open: App.settings.page === "cards"
            page: CardSettingsPage { onBack: App.settings.page = "" }
        }

        PushLayer {
            id: aboutLayer
            anchors.fill: parent
            open: App.settings.page === "about"
            page: AboutPage { onBack: App.settings.page = "" }
        }

        MessageBar {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: Theme.pageMargin
            anchors.bottomMargin: Theme.pageMargin + (root.side ? 0 : Theme.tabBarSize)
        }
    }

    SideBar {
        visible: root.side
        anchors.left: parent.left
        width: Theme.sideBarSize
        height: parent.height
        tabs: root.tabs
        names: root.names
        chosen: root.tab
        onTapped: tab => root.choose(tab)
    }

    function choose(wanted: string) {
        App.dismiss();
        App.settings.page = "";
        weights = false;
        tab = wanted;
    }

    LateSheet {
        id: donations
        readonly property bool wanted: App.destination === "donations"
        onWantedChanged: wanted ? open() : close()
        sourceComponent: DonationsSheet {
            onAboutToHide: {
                if (App.destination === "donations")
                    App.dismiss();
            }
        }
    }

    LateSheet {
        id: repair
        readonly property bool wanted: App.repair.isProposed
        onWantedChanged: wanted ? open() : close()
        sourceComponent: RepairSheet {
            onAboutToHide: {
                if (App.repair.isProposed)
                    App.repair.cancel();
            }
        }
    }

    LateSheet {
        id: feedback
        sourceComponent: FeedbackSheet {}
    }

    LateSheet {
        id: goalWeight
        sourceComponent: GoalWeightSheet {}
    }

    LateSheet {
        readonly property bool wanted: App.weights.isEditing
        onWantedChanged: wanted ? open() : close()
        sourceComponent: WeightSheet { onAboutToHide: App.weights.dismissEdited() }
    }

    LateSheet {
        id: table
        sourceComponent: TableSheet {}
    }

    LateSheet {
        id: weightDate
        sourceComponent: DateTimeSheet {
            title: App.addWeight.dateTitle
            instant: App.addWeight.date
            onChosen: instant => App.addWeight.changeDate(instant)
        }
    }

    Binding { target: Theme; property: "dark"; value: Appearance.dark }
    Binding { target: Theme; property: "textScale"; value: Appearance.textScale }
    Binding { target: Theme; property: "reducedMotion"; value: Appearance.reducedMotion }
}
