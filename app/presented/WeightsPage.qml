// SPDX-License-Identifier: MIT
// All weights, to be looked through and put right.
import QtQuick
import Mivo

FocusScope {
    id: root

    Keys.onEscapePressed: App.back()
    Keys.onBackPressed: App.back()
    Keys.onPressed: event => scrollKeys.pressed(event)

    ScrollKeys {
        id: scrollKeys
        view: list
    }

    PushBar {
        id: bar
        width: parent.width
        focus: true
        title: App.weights.title
    }

    RowKeys {
        anchors.top: bar.bottom
        width: parent.width
        list: list
        spoken: App.weights.spokenText(list.keyedRow)
    }

    RowList {
        id: list
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        rowX: Math.max(Theme.pageMargin, (width - 720) / 2)
        clip: true
        model: App.weights.rows
        header: Item { height: 8 }
        delegate: WeightRow {}
        footer: Item { height: 24 }
        onEditWanted: row => App.weights.edit(row)
        onRemoveWanted: row => App.weights.remove(row)
        onMenuWanted: row => {
            App.weights.menuRow = row;
            App.present("weightMenu");
        }
    }

    Card {
        visible: App.weights.count === 0
        anchors.top: bar.bottom
        anchors.topMargin: 8
        x: list.rowX
        width: list.rowWidth

        StyledText {
            width: parent.width
            text: App.weights.note
            color: Theme.inkSecondary
        }
    }
}
