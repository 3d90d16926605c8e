// SPDX-License-Identifier: MIT
// The sign of the app: an open ring and a dot in the fasting colour.
import QtQuick
import QtQuick.Shapes
import Mivo

Item {
    id: root

    Shape {
        width: 28
        height: 28
        scale: root.width / 28
        transformOrigin: Item.TopLeft

        ShapePath {
            strokeColor: Theme.ink
            strokeWidth: 4.5
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap

            PathSvg { path: "M14 3A11 11 0 1 0 25 14" }
        }

        ShapePath {
            strokeWidth: -1
            fillColor: Theme.fasting.fill

            PathSvg { path: "M21.8 3.2a3 3 0 1 0 0 6a3 3 0 1 0 0-6z" }
        }
    }
}
