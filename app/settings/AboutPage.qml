// SPDX-License-Identifier: MIT
// What the app is, where it keeps the records, and what it is built on.
import QtQuick
import Mivo

PushedPage {
    id: root

    title: App.settings.about.title
    spacing: Theme.sectionTop

    ListGroup {
        width: parent.width
        note: App.settings.about.note

        Repeater {
            model: App.settings.about.facts

            delegate: FactRow {
                required title
                required value
            }
        }
    }

    ListGroup {
        width: parent.width
        title: App.settings.about.librariesTitle

        Repeater {
            model: App.settings.about.libraries

            delegate: FactRow {
                required title
                required value
            }
        }
    }
}
