// SPDX-License-Identifier: MIT
// The window: a page with tabs below, or beside it where there is room, and what is presented over it. What does not
// show when it opens is named by its file, so that its type is loaded when it is first wanted.
import QtQuick
import QtQuick.Window
import Mivo

Window {
    id: root

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

    function showTable(chart: ChartTable, title: string) {
        App.present("table");
        (table.sheet as TableSheet).table = chart;
        table.sheet.title = title;
    }

    Shortcut { sequence: "Ctrl+Q"; onActivated: Qt.quit() }
    Shortcut { sequence: "Ctrl+W"; onActivated: root.close() }
    Shortcut {
        sequence: "Ctrl+Z"
        enabled: App.message.button !== "" && !App.message.isFailure
        onActivated: App.pressMessage()
    }
    Shortcut { sequence: "Ctrl+1"; onActivated: App.present(root.tabs[0]) }
    Shortcut { sequence: "Ctrl+2"; onActivated: App.present(root.tabs[1]) }
    Shortcut { sequence: "Ctrl+3"; onActivated: App.present(root.tabs[2]) }

    Item {
        id: pages

        readonly property bool covered: badgesLayer.covers || roadmapLayer.covers || weightsLayer.covers || cardsLayer.covers || remindersLayer.covers || aboutLayer.covers || backupsLayer.covers

        anchors.fill: parent
        anchors.leftMargin: root.side ? Theme.sideBarSize : 0

        Item {
            anchors.fill: parent
            anchors.bottomMargin: root.side ? 0 : Theme.tabBarSize
            visible: !pages.covered
            enabled: App.screens.page === ""

            Loader {
                id: fasting
                anchors.fill: parent
                visible: App.screens.tab === "fasting"
                active: App.screens.tab === "fasting" || status === Loader.Ready // also below a page that covers it
                focus: visible
                source: "qrc:/Mivo/FastingPage.qml"
            }

            StatisticsPage {
                id: statistics
                anchors.fill: parent
                visible: App.screens.tab === "statistics"
                wide: root.side
                focus: visible
                onTableWanted: (chart, name) => root.showTable(chart, name)
            }

            Loader {
                id: settings
                anchors.fill: parent
                visible: App.screens.tab === "settings"
                active: App.screens.tab === "settings" || status === Loader.Ready // also below a page that covers it
                focus: visible
                source: "qrc:/Mivo/SettingsPage.qml"
            }
        }

        TabBar {
            visible: !root.side && !pages.covered
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.tabBarSize
            tabs: root.tabs
            names: root.names
            chosen: App.screens.tab
            onTapped: tab => App.present(tab)
        }

        PushLayer {
            id: badgesLayer
            anchors.fill: parent
            open: App.screens.page === "badges"
            source: "qrc:/Mivo/BadgesPage.qml"
        }

        PushLayer {
            id: roadmapLayer
            anchors.fill: parent
            open: App.screens.page === "roadmap"
            source: "qrc:/Mivo/RoadmapPage.qml"
        }

        PushLayer {
            id: weightsLayer
            anchors.fill: parent
            open: App.screens.page === "weights"
            source: "qrc:/Mivo/WeightsPage.qml"
        }

        PushLayer {
            id: cardsLayer
            anchors.fill: parent
            open: App.screens.page === "cards"
            source: "qrc:/Mivo/CardSettingsPage.qml"
        }

        PushLayer {
            id: remindersLayer
            anchors.fill: parent
            open: App.screens.page === "reminders"
            source: "qrc:/Mivo/RemindersPage.qml"
        }

        PushLayer {
            id: aboutLayer
            anchors.fill: parent
            open: App.screens.page === "about"
            source: "qrc:/Mivo/AboutPage.qml"
        }

        PushLayer {
            id: backupsLayer
            anchors.fill: parent
            open: App.screens.page === "backups"
            source: "qrc:/Mivo/BackupsPage.qml"
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
        chosen: App.screens.tab
        onTapped: tab => App.present(tab)
    }

    LateSheet {
        screen: "donations"
        source: "qrc:/Mivo/DonationsSheet.qml"
    }

    LateSheet {
        screen: "overlaps"
        source: "qrc:/Mivo/RepairSheet.qml"
    }

    LateSheet {
        screen: "import"
        source: "qrc:/Mivo/ImportSheet.qml"
    }

    LateSheet {
        screen: "export"
        source: "qrc:/Mivo/ExportSheet.qml"
    }

    LateSheet {
        screen: "health"
        source: "qrc:/Mivo/HealthSheet.qml"
    }

    // Wanted from the card that asks for access, and from the sheet.
    FileChooser {
        id: healthFile
        title: App.health.title
        onChosen: App.health.link(files[0])
    }

    Connections {
        target: App.health

        function onFileWanted() {
            healthFile.open();
        }
    }

    LateSheet {
        screen: "restore"
        source: "qrc:/Mivo/RestoreSheet.qml"
    }

    LateSheet {
        screen: "feedback"
        source: "qrc:/Mivo/FeedbackSheet.qml"
    }

    LateSheet {
        screen: "goalWeight"
        source: "qrc:/Mivo/GoalWeightSheet.qml"
    }

    LateSheet {
        screen: "editWeight"
        source: "qrc:/Mivo/WeightSheet.qml"
    }

    // Not in the page that it belongs to: a sheet whose page goes before it has closed stays where it is, unseen.
    LateSheet {
        screen: "weightMenu"
        source: "qrc:/Mivo/WeightMenu.qml"
    }

    LateSheet {
        id: table
        screen: "table"
        source: "qrc:/Mivo/TableSheet.qml"
    }

    LateSheet {
        screen: "date"
        source: "qrc:/Mivo/WeightDateSheet.qml"
    }

    FileDrop { anchors.fill: parent }

    Binding { target: Theme; property: "dark"; value: Appearance.dark }
    Binding { target: Theme; property: "textScale"; value: Appearance.textScale }
    Binding { target: Theme; property: "reducedMotion"; value: Appearance.reducedMotion }
}
