// SPDX-License-Identifier: MIT
import type { AddWeightLogFeatureAction, NoticeCard } from "mivo";
import { ActionButton, FieldButton, QuietButton } from "../controls/Buttons";
import { Card, CardHead } from "../controls/Card";
import { NumberField, Problem } from "../controls/Fields";
import { usePage, useSend } from "../engine/Source";

/// Takes a weight in. Where it is narrow, field, date and button stand below each other.
export function AddWeightCard({ card, inRow }: { card: NoticeCard; inRow: boolean }) {
  const form = usePage("addWeight");
  const send = useSend();
  const act = (action: AddWeightLogFeatureAction) => send({ statistics: { addWeightLogAction: action } });
  const chooseDate = () => {
    if (form) send({ dateChoice: { didBegin: form.date } });
    send({ didOpen: "date" });
  };
  return (
    <Card class={inRow ? "add-weight stacked" : "add-weight"}>
      <div class="card-top">
        <CardHead title={card.title} />
        <QuietButton text={form?.dateText ?? ""} icon="updown" onClick={chooseDate} />
      </div>
      <div class="entry">
        <NumberField
          name={card.title}
          text={form?.fieldText ?? ""}
          unit={form?.unit ?? ""}
          problem={form?.problem ?? ""}
          onType={(text) => act({ didChangeText: text })}
          onLess={() => act("didTapDecrease")}
          onMore={() => act("didTapIncrease")}
          onAccept={() => act("didTapSave")}
        />
        <FieldButton text={form?.dateText ?? ""} icon="updown" onClick={chooseDate} />
        <ActionButton text={card.button} disabled={form?.isSaving ?? false} onClick={() => act("didTapSave")} />
      </div>
      <Problem text={form?.problem ?? ""} />
    </Card>
  );
}
