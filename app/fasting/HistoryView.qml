// SPDX-License-Identifier: MIT
// What the head of the history knows of the list that it stands in.
import QtQuick
import Mivo

RowList {
    /// The running fast stands above the rows.
    property bool whole: true

    /// The height of the head that the view stands at, and how far below the head's top it stands.
    property real headHeight: 0
    property real belowTop: 0

    signal addWanted
    signal monthsWanted
    signal startedWanted
    signal goalWanted

    // The head grows upwards from the rows, which stay. Who sees its upper half wants its top to stay. The list moves by
    // itself before it says that its head has another height: that is no place that anybody chose.
    function rememberPlace() {
        if (headerItem && headerItem.height === headHeight)
            belowTop = contentY - originY;
    }

    function takeHead(height: real) {
        if (belowTop < headHeight / 2)
            contentY = originY + belowTop;
        headHeight = height;
        rememberPlace();
    }

    onContentYChanged: rememberPlace()
    onOriginYChanged: rememberPlace()
}
