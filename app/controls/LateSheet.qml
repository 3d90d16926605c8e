// SPDX-License-Identifier: MIT
// A sheet that is made when it first opens: most are never seen in a day, and the window need not wait for them.
import QtQuick
import Mivo

Loader {
    id: root

    readonly property Sheet sheet: item as Sheet

    active: false

    function open() {
        active = true;
        sheet.open();
    }

    function close() {
        if (sheet)
            sheet.close();
    }
}
