// SPDX-License-Identifier: MIT
import { useState } from "preact/hooks";
import { ActionButton } from "../controls/Buttons";
import { Problem, TextArea } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";
import { RefusedList } from "./ImportSheet";

/// Adding several past fasts at once: lines that somebody types or pastes, and what they would bring.
export function SeveralFastsSheet() {
  const page = usePage("severalFasts");
  const send = useSend();
  const [typed, setTyped] = useState("");
  if (!page) return null;
  const close = () => send({ didClose: "severalFasts" });
  const type = (text: string) => {
    setTyped(text);
    send({ didTypeFasts: text });
  };
  return (
    <Sheet title={page.title} onClose={close}>
      <p class="text-body secondary">{page.text}</p>
      <TextArea name={page.fieldLabel} text={typed} placeholder={page.hint} rows={6} onType={type} />
      {page.summary !== "" && (
        <p class="text-body" role="status">
          {page.summary}
        </p>
      )}
      <Problem text={page.fault} />
      <RefusedList title={page.refusedTitle} rows={page.refused} more={page.moreRefused} />
      <SheetButtons>
        <ActionButton
          text={page.button}
          size="sheet"
          disabled={!page.canAdd || page.isBusy}
          onClick={() => send({ importing: { presented: "didTapImport" } })}
        />
        <ActionButton text={page.cancelLabel} size="sheet" kind="plain" onClick={close} />
      </SheetButtons>
    </Sheet>
  );
}
