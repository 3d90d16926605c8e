// SPDX-License-Identifier: MIT
// What the user can choose.
import QtQuick
import Mivo

Item {
    StyledText {
        x: Theme.pageMargin
        y: 16
        text: Texts.text("Settings")
        style: Theme.titleText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
