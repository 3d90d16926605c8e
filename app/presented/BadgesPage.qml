// SPDX-License-Identifier: MIT
// Both families of badges, and the way to each whole list.
import QtQuick
import Mivo

FocusScope {
    id: root

    PushedPage {
        anchors.fill: parent
        visible: !list.covers
        focus: true
        title: App.badges.title

        BadgeFamilyCard {
            width: parent.width
            family: App.badges.milestones
            kind: Badge.Milestone
            onClicked: App.present("milestones")
        }

        BadgeFamilyCard {
            width: parent.width
            family: App.badges.streaks
            kind: Badge.Streak
            onClicked: App.present("streaks")
        }
    }

    PushLayer {
        id: list
        anchors.fill: parent
        open: App.badges.list !== ""
        page: BadgeListPage {
            id: shown

            // What it shows while it slides out is what it showed before.
            property bool ofStreaks: false

            function follow() {
                if (App.badges.list !== "")
                    ofStreaks = App.badges.list === "streaks";
            }

            kind: ofStreaks ? Badge.Streak : Badge.Milestone
            family: ofStreaks ? App.badges.streaks : App.badges.milestones
            Component.onCompleted: follow()

            Connections {
                target: App.badges

                function onListChanged() {
                    shown.follow();
                }
            }
        }
    }
}
