// SPDX-License-Identifier: MIT
// When the weight was taken that is to be added.
import Mivo

DateTimeSheet {
    title: App.addWeight.dateTitle
    instant: App.addWeight.date
    onChosen: instant => App.addWeight.changeDate(instant)
}
