// SPDX-License-Identifier: MIT
// A list of choices that turns: the one in the middle is chosen. A drag, a notch of the wheel, a click on a row and the
// keys turn it; digits choose the number that they type.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Item {
    id: root

    /// How many choices there are; after the last one comes the first again where it wraps.
    required property int count
    property bool wraps: false
    /// Digits choose by number, from 0 on.
    property bool typable: false
    property int page: 5
    /// Where Home leads.
    property int home: 0
    property string spoken

    /// The choice in the middle.
    readonly property int value: list.currentIndex % count
    readonly property alias moving: list.moving

    /// Where digits choose nothing.
    signal digitTyped(digit: string)

    /// The text of a choice; each wheel has its own.
    function textOf(value: int): string {
        return "";
    }

    /// Shows a choice without rolling there.
    function show(choice: int) {
        list.place(choice + (wraps ? count * Math.floor(list.turns / 2) : 0));
    }

    function turn(rows: int) {
        list.currentIndex = Math.max(0, Math.min(list.count - 1, list.currentIndex + rows));
    }

    /// Rolls to a choice, the shorter way where it wraps.
    function turnTo(choice: int) {
        const way = choice - value;
        turn(wraps && Math.abs(way) > count / 2 ? way - Math.sign(way) * count : way);
    }

    function keyPressed(event: KeyEvent) {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up:
            return turn(-1);
        case Qt.Key_Down:
            return turn(1);
        case Qt.Key_PageUp:
            return turn(-page);
        case Qt.Key_PageDown:
            return turn(page);
        case Qt.Key_Home:
            return turnTo(home);
        case Qt.Key_End:
            return turnTo(count - 1);
        }
        event.accepted = /^[0-9]$/.test(event.text);
        if (!event.accepted)
            return;
        if (typable)
            typed.add(Number(event.text));
        else
            digitTyped(event.text);
    }

    implicitWidth: 72
    implicitHeight: 5 * list.rowSize
    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.name: spoken
    Accessible.focusable: true
    Accessible.onIncreaseAction: turn(1)
    Accessible.onDecreaseAction: turn(-1)
    Keys.onPressed: event => root.keyPressed(event)

    // Digits that follow each other make one number, as long as there is such a choice.
    Timer {
        id: typed

        property int number: 0

        function add(digit: int) {
            const longer = 10 * number + digit;
            number = running && longer < root.count ? longer : digit;
            root.turnTo(number);
            restart();
        }

        interval: 1500
    }

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: 40
        radius: Theme.segmentRadius
        color: Theme.fill

        FocusRing {
            target: root
            targetRadius: Theme.segmentRadius
        }
    }

    ListView {
        id: list

        readonly property real rowSize: 36
        /// So many rounds that nobody comes to their end.
        readonly property int turns: root.wraps ? 200 : 1

        function place(row: int) {
            currentIndex = row;
            positionViewAtIndex(row, ListView.Center);
        }

        anchors.fill: parent
        model: root.count * turns
        clip: true
        keyNavigationEnabled: false
        snapMode: ListView.SnapToItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: (height - rowSize) / 2
        preferredHighlightEnd: (height + rowSize) / 2
        highlightMoveDuration: Theme.selectDuration
        highlightMoveVelocity: -1

        delegate: WheelEntry {
            required property int index

            width: list.width
            height: list.rowSize
            text: root.textOf(index % root.count)
            distance: Math.abs(y + height / 2 - list.contentY - list.height / 2) / height

            TapHandler {
                onTapped: {
                    root.forceActiveFocus(Qt.MouseFocusReason);
                    list.currentIndex = parent.index;
                }
            }
        }

        // A notch is 120 units; wheels that turn finer add up to one.
        WheelHandler {
            property real pending: 0

            target: null
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: event => {
                const turned = pending - event.angleDelta.y / 120;
                const rows = Math.trunc(turned);
                pending = turned - rows;
                if (rows !== 0)
                    root.turn(rows);
            }
        }
    }
}
