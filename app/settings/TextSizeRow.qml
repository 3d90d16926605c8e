// SPDX-License-Identifier: MIT
// How large all texts are, in percent.
import QtQuick
import Mivo

ControlRow {
    id: root

    iconName: "textSize"
    text: Texts.text("Text size")
    controlWidth: stepper.wantedWidth

    Stepper {
        id: stepper
        width: parent.width
        accessibleName: root.text
        from: 85
        to: 200
        stepSize: 5
        value: Math.round(Appearance.textScale * 100)
        textFromValue: value => App.settings.percentText(value)
        onValueModified: Appearance.textScale = value / 100
    }
}
