// SPDX-License-Identifier: MIT
// A list of choices that turns: the one in the middle is chosen.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Mivo

T.Tumbler {
    id: root

    property string spoken

    /// The text of a choice; each wheel has its own.
    function textOf(index: int): string {
        return "";
    }

    implicitWidth: 72
    implicitHeight: 5 * 36
    visibleItemCount: 5
    wrap: false
    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.name: spoken

    background: Item {
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
    }

    contentItem: ListView {
        implicitWidth: root.implicitWidth
        implicitHeight: root.implicitHeight
        model: root.model
        delegate: root.delegate
        clip: true
        snapMode: ListView.SnapToItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: height / 2 - height / root.visibleItemCount / 2
        preferredHighlightEnd: height / 2 + height / root.visibleItemCount / 2
        highlightMoveDuration: Theme.selectDuration
    }

    delegate: WheelEntry {
        text: root.textOf(index)
        distance: Math.abs(T.Tumbler.displacement)
        visibleCount: root.visibleItemCount
    }
}
