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
    readonly property DateTimeChoiceModel choice: App.fasting.dateTimeChoice()
    /// What is wrong with that, in a sentence; it cannot be chosen as long as there is one.
    property string problem

    signal chosen(instant: double)

    spacing: 16

    onAboutToShow: {
        choice.begin(root.instant);
        days.currentIndex = choice.day;
        hours.currentIndex = choice.hour;
        minutes.currentIndex = choice.minute;
        for (const wheel of [days, hours, minutes])
            wheel.positionViewAtIndex(wheel.currentIndex, T.Tumbler.Center);  // it opens there, and does not roll there
    }

    StyledText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.choice.text
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
            model: root.choice.dayCount
            spoken: root.choice.daySpoken
            onCurrentIndexChanged: root.choice.turnDay(currentIndex)

            function textOf(index: int): string {
                return root.choice.dayText(index, root.choice.today);
            }
        }

        Wheel {
            id: hours
            model: 24
            spoken: root.choice.hourSpoken
            onCurrentIndexChanged: root.choice.turnHour(currentIndex)

            function textOf(index: int): string {
                return root.choice.clockText(index);
            }
        }

        Wheel {
            id: minutes
            model: 60
            spoken: root.choice.minuteSpoken
            onCurrentIndexChanged: root.choice.turnMinute(currentIndex)

            function textOf(index: int): string {
                return root.choice.clockText(index);
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
        text: root.choice.doneLabel
        onClicked: {
            root.chosen(root.current);
            root.close();
        }
    }
}
