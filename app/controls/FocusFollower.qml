// SPDX-License-Identifier: MIT
// Scrolls a view so that what the keyboard has reached in it is seen. Items of no height stand for something else, which
// cares for itself.
import QtQuick
import QtQuick.Window
import Mivo

Item {
    id: root

    required property Flickable view
    /// What hides of the view's top.
    property real covered: 0

    function reveal(item: Item) {
        const top = item.mapToItem(view.contentItem, 0, 0).y - 16, bottom = top + item.height + 32;
        if (top - covered < view.contentY)
            view.contentY = Math.max(view.originY, top - covered);
        else if (bottom > view.contentY + view.height)
            view.contentY = Math.min(view.originY + view.contentHeight, bottom) - view.height;
    }

    function holds(item: Item): bool {
        for (let one = item; one; one = one.parent)
            if (one === view.contentItem)
                return true;
        return false;
    }

    Connections {
        target: root.Window.window

        function onActiveFocusItemChanged() {
            const item = root.Window.activeFocusItem;
            if (!item || !InputMode.keyboard)
                return;
            if (item.height > 0 && root.holds(item))
                root.reveal(item);
        }
    }
}
