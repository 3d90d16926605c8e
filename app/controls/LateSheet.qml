// SPDX-License-Identifier: MIT
// A sheet that is made when it first opens: most are never seen in a day, and the window need not wait for them.
import QtQuick
import Mivo

Loader {
    id: root

    /// The name by which the app knows it.
    required property string screen
    readonly property bool wanted: App.screens.sheet === screen
    readonly property Sheet sheet: item as Sheet

    active: false
    Component.onCompleted: follow()
    onWantedChanged: follow()
    // Not where it is set active: a page that is made with its sheet open loads it later.
    onLoaded: (item as Sheet).open()

    function follow() {
        if (wanted && !active)
            active = true;
        else if (sheet)
            wanted ? sheet.open() : sheet.close();
    }

    Connections {
        target: root.sheet

        function onAboutToHide() {
            if (root.wanted)
                App.close(root.screen);
        }
    }
}
