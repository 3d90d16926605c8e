// SPDX-License-Identifier: MIT
import type { ImportFeatureAction, RefusedRow } from "mivo";
import { ActionButton } from "../controls/Buttons";
import { Progress } from "../controls/Card";
import { Problem } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";
import { chooseFiles, useFiles } from "../platform/files";

/// Bringing files along: choosing them, how far they are read, what they ask, what they would bring.
export function ImportSheet() {
  const page = usePage("import");
  const send = useSend();
  const files = useFiles();
  if (!page) return null;
  const close = () => send({ didClose: "import" });
  const act = (action: ImportFeatureAction) => send({ importing: { presented: action } });
  const choose = async () => files.bring(await chooseFiles({ many: true }));
  return (
    <Sheet title={page.title} onClose={close}>
      {page.text !== "" && <p class="text-body secondary breaks">{page.text}</p>}
      <Problem text={page.fault} />
      {page.progress >= 0 && <Progress fraction={page.progress} name={page.text} />}
      {page.answers.map((answer, place) => (
        <ActionButton key={answer} text={answer} size="sheet" kind="secondary" onClick={() => act({ didAnswer: place })} />
      ))}
      {page.files.length > 0 && (
        <ul class="sheet-list">
          {page.files.map(({ name, summary, notes }) => (
            <li key={name}>
              <span class="text-body-strong breaks" dir="auto">
                {name}
              </span>
              <span class="text-label secondary">{summary}</span>
              {notes !== "" && <span class="text-label secondary lines-kept">{notes}</span>}
            </li>
          ))}
        </ul>
      )}
      <RefusedList title={page.refusedTitle} rows={page.refused} more={page.moreRefused} />
      <SheetButtons>
        <ActionButton text={page.button} size="sheet" disabled={page.isBusy} onClick={() => act("didTapImport")} />
        <ActionButton text={page.chooseLabel} size="sheet" onClick={() => void choose()} />
        <ActionButton text={page.cancelLabel} size="sheet" kind="plain" onClick={close} />
      </SheetButtons>
    </Sheet>
  );
}

/// The rows that are not taken in, and why.
export function RefusedList({ title, rows, more }: { title: string; rows: readonly RefusedRow[]; more: string }) {
  if (rows.length === 0) return null;
  return (
    <div class="stack">
      <p class="text-label secondary">{title}</p>
      <ul class="sheet-list">
        {rows.map(({ place, reason }) => (
          <li key={place}>
            <span class="text-body breaks" dir="auto">
              {place}
            </span>
            <span class="text-label secondary breaks" dir="auto">
              {reason}
            </span>
          </li>
        ))}
      </ul>
      {more !== "" && <p class="text-label secondary">{more}</p>}
    </div>
  );
}
