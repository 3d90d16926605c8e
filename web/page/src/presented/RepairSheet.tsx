// SPDX-License-Identifier: MIT
import { ActionButton } from "../controls/Buttons";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";

/// The repair of overlapping fasts: each as it is, struck through, and as it would be.
export function RepairSheet() {
  const page = usePage("repair");
  const send = useSend();
  if (!page) return null;
  return (
    <Sheet title={page.title} onClose={() => send("didCancelOverlapRepair")}>
      <p class="text-body secondary">{page.summary}</p>
      <ul class="sheet-list">
        {page.rows.map((row) => (
          <li>
            <span class="split">
              <span class="text-body-strong">{row.date}</span>
              <span class="text-label secondary">{row.kind}</span>
            </span>
            <s class="text-label secondary">{row.before}</s>
            {row.after !== "" && <span class="text-body">{row.after}</span>}
          </li>
        ))}
      </ul>
      <SheetButtons>
        <ActionButton text={page.button} size="sheet" onClick={() => send("didConfirmOverlapRepair")} />
        <ActionButton text={page.cancelLabel} size="sheet" kind="plain" onClick={() => send("didCancelOverlapRepair")} />
      </SheetButtons>
    </Sheet>
  );
}
