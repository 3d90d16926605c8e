// SPDX-License-Identifier: MIT
// A button of ink, or of quiet fill, or in a data colour for the one that starts a fast.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.Button {
    id: root

    enum Kind { Primary, Secondary, Data, Destructive, Plain, Field }

    property int kind: ActionButton.Primary
    property Accent accent: Theme.fasting
    property string iconName
    property bool large: false
    property real leastHeight: large ? Theme.buttonLargeSize : Theme.buttonSize

    readonly property color surface: {
        if (!enabled)
            return Theme.fill;
        if (kind === ActionButton.Destructive)
            return down ? Theme.dangerFill : "transparent";
        if (kind === ActionButton.Data)
            return down ? accent.barTop : accent.fill;
        if (kind === ActionButton.Secondary)
            return down ? Theme.fillPressed : Theme.fill;
        if (kind === ActionButton.Plain)
            return down ? Theme.fill : "transparent";
        if (kind === ActionButton.Field)
            return down ? Theme.fillPressed : Theme.field;
        return down ? Theme.actionPressed : Theme.action;
    }
    readonly property color label: {
        if (!enabled)
            return Theme.inkDisabled;
        if (kind === ActionButton.Destructive)
            return Theme.danger;
        if (kind === ActionButton.Data)
            return accent.textOnFill;
        return kind === ActionButton.Primary ? Theme.textOnAction : Theme.ink;
    }

    implicitHeight: Math.max(leastHeight, contentItem.implicitHeight + 16)
    implicitWidth: contentItem.implicitWidth + 2 * leftPadding
    leftPadding: 20
    rightPadding: 20
    focusPolicy: Qt.StrongFocus
    Accessible.name: text

    background: Rectangle {
        color: root.surface
        radius: Theme.controlRadius

        Behavior on color {
            ColorAnimation { duration: Theme.pressDuration }
        }

        FocusRing { target: root }
    }

    contentItem: face

    Item {
        id: face

        readonly property real iconRoom: root.iconName !== "" ? Theme.iconSize + row.spacing : 0

        implicitWidth: iconRoom + words.lineWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row
            anchors.centerIn: parent
            spacing: 8

            Icon {
                visible: root.iconName !== ""
                name: root.iconName
                color: root.label
                anchors.verticalCenter: parent.verticalCenter
            }

            MeasuredText {
                id: words
                width: Math.min(lineWidth, face.width - face.iconRoom)
                horizontalAlignment: Text.AlignHCenter
                text: root.text
                style: root.large ? Theme.buttonLargeText : Theme.buttonText
                color: root.label
                anchors.verticalCenter: parent.verticalCenter
            }
        }
    }
}
