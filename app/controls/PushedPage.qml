// SPDX-License-Identifier: MIT
// A page with a way back and a title above a column that scrolls.
import QtQuick
import QtQuick.Templates as T
import Mivo

FocusScope {
    id: root

    property string title
    property real maxWidth: 720
    readonly property real contentWidth: column.width
    default property alias content: column.data
    property alias spacing: column.spacing

    Keys.onEscapePressed: App.back()
    Keys.onBackPressed: App.back()
    Keys.onPressed: event => scrollKeys.pressed(event)

    ScrollKeys {
        id: scrollKeys
        view: flick
    }

    PushBar {
        id: bar
        width: parent.width
        focus: true
        title: root.title
    }

    Flickable {
        id: flick
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentWidth: width
        contentHeight: column.height
        clip: true
        T.ScrollBar.vertical: ScrollMark {}

        Column {
            id: column
            x: Math.max(Theme.pageMargin, (parent.width - root.maxWidth) / 2)
            width: parent.width - 2 * x
            topPadding: 8
            bottomPadding: 24
            spacing: 12
        }
    }

    FocusFollower { view: flick }
}
