// SPDX-License-Identifier: MIT
// Stands in for the app where it cannot start: why, and a way to try again.
import QtQuick
import QtQuick.Window
import Mivo

Window {
    id: root

    required property string sentence

    signal againWanted

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

            ActionButton {
                width: parent.width
                text: Words.tryAgain
                focus: true
                onClicked: root.againWanted()
            }
        }
    }

    Binding { target: Theme; property: "dark"; value: Appearance.dark }
    Binding { target: Theme; property: "textScale"; value: Appearance.textScale }
    Binding { target: Theme; property: "reducedMotion"; value: Appearance.reducedMotion }
}
