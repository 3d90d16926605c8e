// SPDX-License-Identifier: MIT
import { SwitchRow } from "../controls/Rows";
import { Sheet } from "../controls/Sheet";
import { Icon } from "../controls/Icon";
import { usePage, useSend } from "../engine/Source";
import { useFiles } from "../platform/files";

/// What can be taken out into a file, and the database itself. Pages are the browser's to print; it makes no pictures.
export function ExportSheet({ onPrint }: { onPrint: () => void }) {
  const page = usePage("export");
  const browser = usePage("browser");
  const send = useSend();
  const files = useFiles();
  if (!page) return null;
  return (
    <Sheet title={page.title} onClose={() => send({ didClose: "export" })}>
      <p class="text-body secondary">{page.text}</p>
      <div class="sheet-list">
        {page.rows.map(({ title, note, fileName, ending }, row) => {
          if (ending === "png") return null;
          const take = ending === "pdf" ? onPrint : () => send({ didExportRow: { row, path: fileName } });
          return <ExportLine key={fileName} title={title} note={note} onClick={take} />;
        })}
        {browser && <ExportLine title={browser.wholeDatabase} note={browser.databaseNote} onClick={files.takeDatabase} />}
      </div>
      <SwitchRow text={page.weightsLabel} on={page.printsWeights} onClick={() => send("didSwitchPrintedWeights")} />
    </Sheet>
  );
}

function ExportLine({ title, note, onClick }: { title: string; note: string; onClick: () => void }) {
  return (
    <button type="button" class="sheet-line" onClick={onClick}>
      <span>
        <span class="text-body-strong">{title}</span>
        <span class="text-label secondary">{note}</span>
      </span>
      <Icon name="chevron" size={20} turns />
    </button>
  );
}
