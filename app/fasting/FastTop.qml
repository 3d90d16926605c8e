// SPDX-License-Identifier: MIT
// The name of the tab and the fast that runs.
import QtQuick
import QtQuick.Window
import Mivo

Column {
    id: root

    signal startedWanted
    signal goalWanted

    PageTitle {
        width: parent.width
        wide: root.Window.width >= Theme.sideBarWidth
        text: App.fasting.title
    }

    FastCard {
        width: parent.width
        onStartedWanted: root.startedWanted()
        onGoalWanted: root.goalWanted()
    }
}
