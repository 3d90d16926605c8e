// SPDX-License-Identifier: MIT
import { ActionButton } from "../controls/Buttons";
import { Progress } from "../controls/Card";
import { Problem } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";
import { chooseFiles, useFiles } from "../platform/files";

/// The file that weights are taken from.
export function HealthSheet() {
  const page = usePage("health");
  const send = useSend();
  const files = useFiles();
  if (!page) return null;
  const close = () => send({ didClose: "health" });
  const choose = async () => {
    const [file] = await chooseFiles({ many: false });
    if (!file) return;
    const [path] = files.offer([file]);
    if (path) send({ health: { didLink: path } });
  };
  return (
    <Sheet title={page.title} onClose={close}>
      <p class="text-body secondary">{page.text}</p>
      <Problem text={page.fault} />
      {page.progress >= 0 && <Progress fraction={page.progress} name={page.title} />}
      <SheetButtons>
        <ActionButton text={page.chooseLabel} size="sheet" onClick={() => void choose()} />
        <ActionButton text={page.unlinkLabel} size="sheet" kind="secondary" onClick={() => send({ health: "didUnlink" })} />
        <ActionButton text={page.closeLabel} size="sheet" kind="plain" onClick={close} />
      </SheetButtons>
    </Sheet>
  );
}
