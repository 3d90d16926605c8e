// SPDX-License-Identifier: MIT
// One of the usual lengths of a fast.
import QtQuick
import Mivo

Chip {
    id: root

    property int hours

    signal picked(seconds: real)

    text: App.fasting.hoursText(hours * 3600)
    onClicked: root.picked(hours * 3600)
}
