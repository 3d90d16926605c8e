// SPDX-License-Identifier: MIT
// Chooses a date and a time: day, hour and minute on three wheels, or typed as a whole.
import QtQuick
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
        heading.typing = false;
        showChoice();
    }

    // The wheels tell of each of them as they are set: what was chosen is read first.
    function showChoice() {
        const places = [choice.day, choice.hour, choice.minute];
        [days, hours, minutes].forEach((wheel, at) => wheel.show(places[at]));
    }

    Item {
        id: heading

        property bool typing: false
        property bool failed: false

        function begin(text: string, selected: bool) {
            failed = false;
            typing = true;
            field.text = text;
            field.forceActiveFocus();
            if (selected)
                field.selectAll();
        }

        function end() {
            failed = !root.choice.type(field.text);
            if (failed) {
                field.forceActiveFocus();
                return;
            }
            typing = false;
            root.showChoice();
            done.forceActiveFocus();
        }

        width: parent.width
        height: Math.max(typing ? field.implicitHeight : chosen.implicitHeight, Theme.touchSize)

        StyledText {
            id: chosen
            visible: !heading.typing
            anchors.verticalCenter: parent.verticalCenter
            x: Theme.touchSize
            width: parent.width - 2 * Theme.touchSize
            horizontalAlignment: Text.AlignHCenter
            text: root.choice.text
            style: Theme.bodyStrongText
        }

        IconButton {
            visible: !heading.typing
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            iconName: "pencil"
            text: root.choice.typeLabel
            onClicked: heading.begin(root.choice.typed, true)
        }

        TextField {
            id: field
            visible: heading.typing
            width: parent.width
            accessibleName: root.choice.typeLabel
            placeholder: root.choice.typed
            hasProblem: heading.failed
            onAccepted: heading.end()
            onTextChanged: heading.failed = false
            Keys.onEscapePressed: {
                heading.typing = false;
                days.forceActiveFocus();
            }
        }
    }

    StyledText {
        visible: heading.typing && heading.failed
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.choice.typedProblem
        style: Theme.captionText
        color: Theme.danger
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
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
            page: 7
            home: root.choice.todayPlace
            count: root.choice.dayCount
            spoken: root.choice.daySpoken
            onValueChanged: root.choice.turnDay(value)
            // Days have no numbers: who types wants to type the date.
            onDigitTyped: digit => heading.begin(digit, false)

            function textOf(value: int): string {
                return root.choice.dayText(value, root.choice.today);
            }
        }

        Wheel {
            id: hours
            count: 24
            wraps: true
            typable: true
            page: 6
            spoken: root.choice.hourSpoken
            onValueChanged: root.choice.turnHour(value)

            function textOf(value: int): string {
                return root.choice.hourText(value);
            }
        }

        Wheel {
            id: minutes
            count: 60
            wraps: true
            typable: true
            page: 10
            spoken: root.choice.minuteSpoken
            onValueChanged: root.choice.turnMinute(value)

            function textOf(value: int): string {
                return root.choice.minuteText(value);
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
        id: done
        width: parent.width
        leastHeight: Theme.sheetButtonSize
        enabled: root.problem === ""
        text: root.choice.doneLabel
        onClicked: {
            if (heading.typing)
                heading.end();
            if (heading.typing)
                return;
            root.chosen(root.current);
            root.close();
        }
    }
}
