// SPDX-License-Identifier: MIT
// How large all texts are, in percent.
import QtQuick
import Mivo

ControlRow {
    id: root

    /// Is about to change how tall everything is.
    signal aboutToChange

    iconName: "textSize"
    text: App.settings.textSize.title
    controlWidth: stepper.wantedWidth

    Stepper {
        id: stepper
        width: parent.width
        accessibleName: root.text
        from: App.settings.textSize.least
        to: App.settings.textSize.most
        stepSize: App.settings.textSize.step
        value: App.settings.textSize.value
        textFromValue: value => App.settings.percentText(value)
        onValueModified: {
            root.aboutToChange();
            App.settings.changeTextSize(value);
        }
    }
}
