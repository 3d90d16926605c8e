// SPDX-License-Identifier: MIT
// Both families of badges, and the way to each whole list.
import QtQuick
import Mivo

FocusScope {
    id: root

    signal back

    PushedPage {
        anchors.fill: parent
        visible: !list.covers
        focus: true
        title: App.badges.title
        onBack: root.back()

        BadgeFamilyCard {
            width: parent.width
            family: App.badges.milestones
            kind: Badge.Milestone
            onClicked: App.badges.openMilestones()
        }

        BadgeFamilyCard {
            width: parent.width
            family: App.badges.streaks
            kind: Badge.Streak
            onClicked: App.badges.openStreaks()
        }
    }

    PushLayer {
        id: list
        anchors.fill: parent
        open: App.badges.list !== ""
        page: BadgeListPage {
            // What it shows while it slides out is what it showed before.
            readonly property bool ofStreaks: App.badges.list === "streaks" || (App.badges.list === "" && lastWasStreaks)
            property bool lastWasStreaks: false

            kind: ofStreaks ? Badge.Streak : Badge.Milestone
            family: ofStreaks ? App.badges.streaks : App.badges.milestones
            onBack: {
                lastWasStreaks = App.badges.list === "streaks";
                App.badges.closeList();
            }
        }
    }
}
