// SPDX-License-Identifier: MIT
import QtQuick
import Mivo

Card {
    id: root

    required property NoticeCardRecord card
    required property AddWeightModel entry
    /// It stands in a row of three.
    property bool inRow: false

    signal dateTapped

    readonly property bool stacked: inRow || width - 2 * padding < 300 || Theme.textScale >= 1.3

    spacing: 12

    Item {
        width: parent.width
        height: root.stacked ? head.height : Math.max(head.height, 24)

        CardHead {
            id: head
            anchors.left: parent.left
            width: root.stacked ? parent.width : parent.width - dateButton.width - 8
            title: root.card.title
        }

        IconTextButton {
            id: dateButton
            visible: !root.stacked
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.entry.dateText
            iconName: "updown"
            onClicked: root.dateTapped()
        }
    }

    Grid {
        width: parent.width
        columns: root.stacked ? 1 : 2
        columnSpacing: 12
        rowSpacing: 10

        NumberField {
            width: root.stacked ? parent.width : parent.width - save.width - 12
            text: root.entry.fieldText
            unit: root.entry.unit
            hasProblem: root.entry.problem !== ""
            accessibleName: root.card.title
            onEdited: text => root.entry.edit(text)
            onIncreased: root.entry.increase()
            onDecreased: root.entry.decrease()
            onAccepted: root.entry.save()
        }

        FieldButton {
            visible: root.stacked
            width: parent.width
            text: root.entry.dateText
            iconName: "updown"
            onClicked: root.dateTapped()
        }

        ActionButton {
            id: save
            width: root.stacked ? parent.width : Math.max(88, implicitWidth)
            leftPadding: 14
            rightPadding: 14
            text: root.card.button
            enabled: !root.entry.isSaving
            onClicked: root.entry.save()
        }
    }

    StyledText {
        width: parent.width
        visible: text !== ""
        text: root.entry.problem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
