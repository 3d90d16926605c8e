// SPDX-License-Identifier: MIT
// Chooses a date and a time: day, hour and minute on three wheels.
import QtQuick
import QtQuick.Templates as T
import Mivo

Sheet {
    id: root

    /// Seconds since 1970; what the sheet opens with.
    property double instant

    /// What the wheels say now.
    readonly property double current: choice.instant
    /// What is wrong with that, in a sentence; it cannot be chosen as long as there is one.
    property string problem

    signal chosen(instant: double)

    spacing: 16

    onAboutToShow: {
        choice.instant = root.instant;
        days.currentIndex = choice.day;
        hours.currentIndex = choice.hour;
        minutes.currentIndex = choice.minute;
        for (const wheel of [days, hours, minutes])
            wheel.positionViewAtIndex(wheel.currentIndex, T.Tumbler.Center);  // it opens there, and does not roll there
    }

    DateTimeChoice { id: choice }

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: choice.text
        style: Theme.bodyStrongText
    }

    // Like a clock, it reads from the left in every language.
    Row {
        id: wheels
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 8
        LayoutMirroring.enabled: false

        Wheel {
            id: days
            width: 152
            model: choice.dayCount
            accessibleName: Texts.text("Day")
            onCurrentIndexChanged: choice.day = currentIndex

            function textOf(index: int): string {
                return choice.dayText(index, choice.today);
            }
        }

        Wheel {
            id: hours
            model: 24
            accessibleName: Texts.text("Hour")
            onCurrentIndexChanged: choice.hour = currentIndex

            function textOf(index: int): string {
                return choice.clockText(index);
            }
        }

        Wheel {
            id: minutes
            model: 60
            accessibleName: Texts.text("Minute")
            onCurrentIndexChanged: choice.minute = currentIndex

            function textOf(index: int): string {
                return choice.clockText(index);
            }
        }
    }

    StyledText {
        visible: text !== ""
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.problem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    ActionButton {
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        enabled: root.problem === ""
        text: Texts.text("Done")
        onClicked: {
            root.chosen(choice.instant);
            root.close();
        }
    }
}
