// SPDX-License-Identifier: MIT
import { ActionButton } from "../controls/Buttons";
import { Problem } from "../controls/Fields";
import { PushedPage } from "../controls/PushedPage";
import { FactRow, ListGroup, ValueRow } from "../controls/Rows";
import { usePage, useSend } from "../engine/Source";

/// The backups that there are, and a new one. In the browser they stand beside the database, and nowhere else.
export function BackupsPage() {
  const page = usePage("backups");
  const send = useSend();
  if (!page) return null;
  return (
    <PushedPage title={page.title}>
      <ActionButton text={page.button} size="sheet" disabled={page.isBusy} onClick={() => send({ backups: "didTapBackUp" })} />
      {page.rows.length > 0 && (
        <ListGroup title={page.listTitle}>
          {page.rows.map(({ date, counts, isReadable }, row) => (
            <ValueRow key={date} icon="safe" text={date} value={counts} disabled={!isReadable} onClick={() => send({ backups: { didChoose: row } })} />
          ))}
        </ListGroup>
      )}
      <Problem text={page.fault} />
      {page.folder !== "" && (
        <ListGroup note={page.note}>
          <FactRow title={page.folderLabel} value={page.folder} />
        </ListGroup>
      )}
    </PushedPage>
  );
}
