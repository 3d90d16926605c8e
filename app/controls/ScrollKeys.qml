// SPDX-License-Identifier: MIT
// Scrolls a view by the keys that nothing in it has a use for.
import QtQuick

QtObject {
    id: root

    required property Flickable view
    /// What hides of the view's top.
    property real covered: 0

    function scrollTo(y: real) {
        const last = view.originY + Math.max(0, view.contentHeight - view.height);
        view.contentY = Math.max(view.originY, Math.min(last, y));
    }

    function pressed(event: KeyEvent) {
        // A little of what was seen stays to be seen.
        const page = Math.max(48, view.height - covered - 64);
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_PageDown:
            return scrollTo(view.contentY + page);
        case Qt.Key_PageUp:
            return scrollTo(view.contentY - page);
        case Qt.Key_Down:
            return scrollTo(view.contentY + 48);
        case Qt.Key_Up:
            return scrollTo(view.contentY - 48);
        case Qt.Key_Home:
            return scrollTo(view.originY);
        case Qt.Key_End:
            return scrollTo(Infinity);
        }
        event.accepted = false;
    }
}
