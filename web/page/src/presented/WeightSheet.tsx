// SPDX-License-Identifier: MIT
import type { AddWeightLogFeatureAction } from "mivo";
import { useState } from "preact/hooks";
import { ActionButton, FieldButton } from "../controls/Buttons";
import { DateTimeSheet } from "../controls/DateTimeSheet";
import { NumberField, Problem } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";

/// Edits a weight of the list.
export function WeightSheet() {
  const entry = usePage("editedWeight");
  const weights = usePage("weights");
  const send = useSend();
  const [choosesDate, chooseDate] = useState(false);
  if (!entry || !weights) return null;
  const act = (action: AddWeightLogFeatureAction) => send({ editedWeight: { presented: action } });
  return (
    <Sheet title={weights.editLabel} onClose={() => send({ didClose: "editWeight" })}>
      <NumberField
        name={weights.editLabel}
        text={entry.fieldText}
        unit={entry.unit}
        problem={entry.problem}
        onType={(text) => act({ didChangeText: text })}
        onLess={() => act("didTapDecrease")}
        onMore={() => act("didTapIncrease")}
        onAccept={() => act("didTapSave")}
      />
      <FieldButton
        text={entry.dateText}
        icon="updown"
        onClick={() => {
          send({ dateChoice: { didBegin: entry.date } });
          chooseDate(true);
        }}
      />
      <Problem text={entry.problem} />
      <SheetButtons>
        <ActionButton text={weights.saveLabel} size="sheet" disabled={entry.isSaving} onClick={() => act("didTapSave")} />
        <ActionButton text={weights.removeLabel} size="sheet" kind="destructive" icon="trash" onClick={() => send("didDeleteEditedWeight")} />
      </SheetButtons>
      {choosesDate && <DateTimeSheet title={entry.dateTitle} onChoose={(instant) => act({ didChangeDate: instant })} onClose={() => chooseDate(false)} />}
    </Sheet>
  );
}
