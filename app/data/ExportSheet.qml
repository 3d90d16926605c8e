// SPDX-License-Identifier: MIT
// What can be taken out into a file.
pragma ComponentBehavior: Bound
import QtQuick
import Mivo

Sheet {
    id: root

    title: App.exporting.title
    spacing: 16

    // The dialog is loaded when it is first wanted: the window need not wait for it.
    Loader {
        id: saver

        property ExportLine wanted: null

        active: false
        visible: false
        source: "qrc:/Mivo/SaveFile.qml"
        onLoaded: ask()

        function open(line: ExportLine) {
            wanted = line;
            if (active)
                ask();
            else
                active = true;
        }

        function ask() {
            (item as SaveFile).open(wanted.index, wanted.fileName, wanted.ending, wanted.filter);
        }
    }

    StyledText {
        width: parent.width
        text: App.exporting.text
        color: Theme.inkSecondary
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    SheetList {
        Repeater {
            model: App.exporting.rows

            delegate: ExportLine {
                id: line
                onClicked: saver.open(line)
            }
        }
    }

    Column {
        width: parent.width

        SwitchRow {
            leftPadding: 0
            rightPadding: 0
            text: App.exporting.weightsLabel
            on: App.exporting.printsWeights
            onClicked: App.exporting.switchWeights()
        }
    }
}
