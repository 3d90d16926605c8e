// SPDX-License-Identifier: MIT
// The months of the history, to go to one of them.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    signal chosen(row: int)

    title: App.fasting.history.monthsLabel
    onAboutToShow: App.fasting.history.lookUpMonths()

    Column {
        width: parent.width

        Repeater {
            model: App.fasting.history.months

            delegate: MonthRow {
                focus: index === 0
                onClicked: {
                    root.chosen(row);
                    root.close();
                }
            }
        }
    }
}
