// SPDX-License-Identifier: MIT
import type { ShownTable } from "../App";
import { LongList } from "../controls/LongList";
import { Sheet } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";

/// A chart as a table, the latest first.
export function TableSheet({ table }: { table: ShownTable }) {
  const send = useSend();
  const fasting = usePage("fastingChart");
  const eating = usePage("eatingChart");
  const weight = usePage("weightChart");
  const pair = usePage("weightFastingChart");
  const points = (lines: readonly { count: number }[] | undefined) => lines?.reduce((sum, line) => sum + line.count, 0);
  const counts = {
    fastingTable: fasting?.count,
    eatingTable: eating?.count,
    weightTable: points(weight?.lines),
    weightFastingTable: points(pair?.lines),
  };
  return (
    <Sheet title={table.title} onClose={() => send({ didClose: "table" })}>
      <LongList
        list={table.list}
        name={table.title}
        count={counts[table.list] ?? 0}
        usualHeight={48}
        row={({ date, value }) => (
          <div class="table-line text-body">
            <span>{date}</span>
            <span class="secondary">{value}</span>
          </div>
        )}
      />
    </Sheet>
  );
}
