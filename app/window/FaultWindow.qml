// SPDX-License-Identifier: MIT
// Stands in for the app where it cannot start: why, and a way to try again.
import QtQuick
import QtQuick.Window
import Mivo

Window {
    id: root

    required property string sentence
    /// A backup can take the place of the history, or an empty one.
    property bool isDamaged: false

    signal againWanted
    signal backupWanted
    signal newWanted

    width: 390
    height: 520
    minimumWidth: 320
    minimumHeight: 360
    visible: true
    title: "Mivo"
    color: Theme.background
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Flickable {
        id: page
        anchors.fill: parent
        contentHeight: card.y + card.height + Theme.pageMargin

        Card {
            id: card
            x: (page.width - width) / 2
            y: Math.max(Theme.pageMargin, (page.height - height) / 2)
            width: Math.min(page.width - 2 * Theme.pageMargin, 480)
            spacing: 12

            StyledText {
                width: parent.width
                text: Words.cannotOpen
                style: Theme.headlineText
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            StyledText {
                width: parent.width
                text: root.sentence
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                color: Theme.inkSecondary
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }

            StyledText {
                visible: root.isDamaged
                width: parent.width
                text: Words.damagedIsKept
                color: Theme.inkSecondary
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            ActionButton {
                visible: root.isDamaged
                width: parent.width
                text: Words.restoreNewest
                focus: visible
                onClicked: root.backupWanted()
            }

            ActionButton {
                visible: root.isDamaged
                width: parent.width
                kind: ActionButton.Secondary
                text: Words.beginAnew
                onClicked: root.newWanted()
            }

            ActionButton {
                width: parent.width
                kind: root.isDamaged ? ActionButton.Plain : ActionButton.Primary
                text: Words.tryAgain
                focus: !root.isDamaged
                onClicked: root.againWanted()
            }
        }
    }

    Binding { target: Theme; property: "dark"; value: Appearance.dark }
    Binding { target: Theme; property: "textScale"; value: Appearance.textScale }
    Binding { target: Theme; property: "reducedMotion"; value: Appearance.reducedMotion }
}
