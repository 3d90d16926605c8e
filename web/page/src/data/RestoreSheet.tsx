// SPDX-License-Identifier: MIT
import { ActionButton } from "../controls/Buttons";
import { Problem } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";

/// Going back to a backup, for the user to agree to.
export function RestoreSheet() {
  const page = usePage("restore");
  const send = useSend();
  if (!page) return null;
  const close = () => send({ didClose: "restore" });
  const line = (label: string, value: string) => (
    <div class="table-line text-body">
      <span>{label}</span>
      <span class="secondary">{value}</span>
    </div>
  );
  return (
    <Sheet title={page.title} onClose={close}>
      <p class="text-body secondary">{page.text}</p>
      <div class="lines">
        {line(page.presentLabel, page.present)}
        {line(page.backupLabel, page.backup)}
      </div>
      <Problem text={page.fault} />
      <SheetButtons>
        <ActionButton text={page.button} size="sheet" disabled={page.isBusy} onClick={() => send({ backups: "didTapRestore" })} />
        <ActionButton text={page.cancelLabel} size="sheet" kind="plain" onClick={close} />
      </SheetButtons>
    </Sheet>
  );
}
