// SPDX-License-Identifier: MIT
// What the app is, where it keeps the records, and what it is built on.
import QtQuick
import Mivo

PushedPage {
    id: root

    title: Texts.text("About Mivo")
    spacing: Theme.sectionTop

    ListGroup {
        width: parent.width
        note: Texts.text("Everything stays on this device.")

        FactRow {
            title: Texts.text("Version")
            value: App.settings.version
        }

        FactRow {
            title: Texts.text("Licence")
            value: "MIT"
        }

        FactRow {
            title: Texts.text("Database")
            value: App.settings.databaseFile
        }

        FactRow {
            title: Texts.text("Copy of everything")
            value: App.settings.exportCommand
        }
    }

    ListGroup {
        width: parent.width
        title: Texts.text("Libraries")

        Repeater {
            model: App.settings.libraries

            delegate: FactRow {
                required property usedLibrary modelData

                title: modelData.name
                value: modelData.licence
            }
        }
    }
}
