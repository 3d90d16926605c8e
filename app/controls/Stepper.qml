// SPDX-License-Identifier: MIT
// A number between minus and plus. The arrow keys change it too.
import QtQuick
import QtQuick.Templates as T
import Mivo

T.SpinBox {
    id: root

    property string accessibleName
    readonly property real wantedWidth: 2 * Theme.touchSize + Math.max(44, valueText.implicitWidth + 4)

    implicitWidth: wantedWidth
    implicitHeight: Math.max(Theme.touchSize, valueText.implicitHeight + 16)
    editable: false
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.SpinBox
    Accessible.name: accessibleName + ", " + displayText
    Keys.onLeftPressed: root.mirrored ? root.stepUp() : root.stepDown()
    Keys.onRightPressed: root.mirrored ? root.stepDown() : root.stepUp()

    function stepUp() {
        root.increase();
        root.valueModified();
    }

    function stepDown() {
        root.decrease();
        root.valueModified();
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.field

        FocusRing { target: root }
    }

    contentItem: face

    Item {
        id: face

        // Qt makes it a stop of its own, for fields to type in.
        Component.onCompleted: activeFocusOnTab = false

        StyledText {
            id: valueText
            anchors.centerIn: parent
            text: root.displayText
            style: Theme.bodyStrongText
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }
    }

    down.indicator: StepButton {
        x: root.mirrored ? root.width - width : 0
        height: root.height
        iconName: "minus"
        pressed: root.down.pressed
        enabled: root.value > root.from
    }

    up.indicator: StepButton {
        x: root.mirrored ? 0 : root.width - width
        height: root.height
        iconName: "plus"
        pressed: root.up.pressed
        enabled: root.value < root.to
    }
}
