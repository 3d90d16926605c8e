// SPDX-License-Identifier: MIT
import { useState } from "preact/hooks";
import { ActionButton } from "../controls/Buttons";
import { TextArea, TextField } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend, useSource } from "../engine/Source";

/// An idea of the user's, sent by their own mail program or copied.
export function FeedbackSheet() {
  const page = usePage("feedback");
  const mail = usePage("mail");
  const source = useSource();
  const send = useSend();
  const [idea, setIdea] = useState("");
  const [replyTo, setReplyTo] = useState("");
  if (!page) return null;
  const type = (text: string, reply: string) => {
    setIdea(text);
    setReplyTo(reply);
    send({ didTypeIdea: { idea: text, replyTo: reply } });
  };
  const close = () => send({ didClose: "feedback" });
  const hand = async () => {
    const written = await source.engine.page("mail");
    if (!written) return;
    if (written.address !== "") {
      const query = new URLSearchParams({ subject: written.subject, body: written.body }).toString().replaceAll("+", "%20");
      location.href = `mailto:${written.address}?${query}`;
    } else {
      await navigator.clipboard.writeText(written.body);
      send("didFindNoMailProgram");
    }
    close();
  };
  return (
    <Sheet title={page.title} onClose={close}>
      <div class="stack">
        <p class="text-label secondary">{page.ideaLabel}</p>
        <TextArea name={page.ideaLabel} text={idea} rows={5} onType={(text) => type(text, replyTo)} />
      </div>
      <div class="stack">
        <p class="text-label secondary">{page.replyLabel}</p>
        <TextField name={page.replyLabel} keyboard="email" text={replyTo} placeholder={page.replyPlaceholder} onType={(text) => type(idea, text)} />
        <p class="text-caption secondary">{page.note}</p>
      </div>
      <SheetButtons>
        <ActionButton text={page.button} size="sheet" disabled={!mail?.canSend} onClick={() => void hand()} />
      </SheetButtons>
    </Sheet>
  );
}
