// SPDX-License-Identifier: MIT
// What compiles against the written types, and what must not.
import type { Action, Lists, Pages } from "./Mivo";

export function line(fasting: Pages["fasting"]): string {
    return fasting.isRunning ? `${fasting.elapsed} ${fasting.zone === "ketosis"}` : fasting.button;
}

export function cards(page: Pages["statistics"]): string[] {
    return page.cards.map(card => "NoticeCard" in card.content ? card.content.NoticeCard.title : card.kind);
}

export function length(fast: Pages["editedFast"]): string | undefined {
    // @ts-expect-error: none is edited at first
    return fast === null ? fast.length : fast?.length;
}

export function bar(row: Lists["fastingBars"]): number {
    return row.end - row.start;
}

export const sent: Action[] = [
    "didGoBack",
    { didOpen: "import" },
    { didTapStart: { start: 1782907200, goalSeconds: 57600 } },
    { statistics: { binding: { timeRange: "month" } } },
    { statistics: { destination: "dismiss" } },
    { statistics: { destination: { presented: { donations: { didChooseProduct: "coffee" } } } } },
    { statistics: { fastingChartAction: { didUpdateVisibleDays: [[0, 17.5]] } } },
    { weightChart: { didTouch: null } },
    { didToggleCard: { group: "trends", row: 0 } },
    // @ts-expect-error: found by a task, done by nobody
    { didFail: "x" },
    // @ts-expect-error: no such screen
    { didOpen: "importing" },
    // @ts-expect-error: a field is missing
    { didTapStart: { start: 1782907200 } },
    // @ts-expect-error: a field too many
    { didToggleCard: { group: "trends", row: 0, place: 1 } },
    // @ts-expect-error: no such range
    { statistics: { binding: { timeRange: "decade" } } },
    // @ts-expect-error: has no value
    { didGoBack: {} },
];

export function wrong(fasting: Pages["fasting"], lists: Lists): unknown[] {
    return [
        // @ts-expect-error: no such field
        fasting.isFasting,
        // @ts-expect-error: rows have no count
        lists.historyRows.count,
        // @ts-expect-error: no such zone
        fasting.zone === "sleeping",
    ];
}
