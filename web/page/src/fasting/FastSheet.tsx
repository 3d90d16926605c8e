// SPDX-License-Identifier: MIT
import type { Screen } from "mivo";
import { useEffect, useState } from "preact/hooks";
import { ZoneStrip } from "../charts/ZoneStrip";
import { ActionButton } from "../controls/Buttons";
import { DateTimeSheet } from "../controls/DateTimeSheet";
import { Problem, TextArea } from "../controls/Fields";
import { CautionLine, Icon } from "../controls/Icon";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";
import { ZoneTimes } from "./FastCard";
import { GoalChoice } from "./GoalChoice";

/// Edits a fast of the history, or adds one.
export function FastSheet({ screen }: { screen: Screen }) {
  const draft = usePage("editedFast");
  const goal = usePage("goalChoice");
  const send = useSend();
  const [date, setDate] = useState<"start" | "end" | null>(null);
  const isThere = draft !== undefined;
  useEffect(() => {
    if (draft) send({ goalChoice: { didBegin: draft.goalSeconds } });
  }, [isThere]);
  const chosen = goal?.seconds;
  useEffect(() => {
    if (draft && chosen !== undefined && chosen > 0 && chosen !== draft.goalSeconds) send({ didChangeDraftGoal: chosen });
  }, [chosen]);
  if (!draft) return null;
  const chooseDate = (which: "start" | "end") => {
    send({ dateChoice: { didBegin: draft[which] } });
    setDate(which);
  };
  const takeDate = (instant: number) => send(date === "start" ? { didChangeDraftStart: instant } : { didChangeDraftEnd: instant });
  return (
    <Sheet title={draft.title} onClose={() => send({ didClose: screen })}>
      <div class="draft-fields">
        <DraftField label={draft.startLabel} value={draft.startText} problem={draft.startProblem} onClick={() => chooseDate("start")} />
        <DraftField label={draft.endLabel} value={draft.endText} problem={draft.endProblem} onClick={() => chooseDate("end")} />
        <div class="draft-field">
          <span class="split">
            <span class="text-body">{draft.lengthLabel}</span>
            <span class="text-body-strong">{draft.length}</span>
          </span>
        </div>
      </div>
      <CautionLine text={draft.overlap} />
      <GoalChoice labelled onAccept={() => send("didTapSaveDraft")} />
      <div class="stack">
        <p class="text-label secondary">{draft.noteLabel}</p>
        <TextArea name={draft.noteLabel} text={draft.note} problem={draft.noteProblem} onType={(note) => send({ didChangeDraftNote: note })} />
      </div>
      <div class="stack">
        <p class="text-label secondary">{draft.zonesLabel}</p>
        <ZoneStrip seconds={draft.seconds} span={Math.max(1, draft.seconds)} />
        <ZoneTimes zones={draft.zones} />
      </div>
      <Problem text={draft.failure} />
      <SheetButtons>
        <ActionButton text={draft.saveLabel} size="sheet" disabled={!goal?.canSave} onClick={() => send("didTapSaveDraft")} />
        {!draft.isNew && (
          <ActionButton text={draft.removeLabel} size="sheet" kind="destructive" icon="trash" onClick={() => send("didDeleteEditedFast")} />
        )}
        <ActionButton text={draft.severalLabel} size="sheet" kind="plain" onClick={() => send({ didOpen: "severalFasts" })} />
      </SheetButtons>
      {date && <DateTimeSheet title={date === "start" ? draft.startLabel : draft.endLabel} onChoose={takeDate} onClose={() => setDate(null)} />}
    </Sheet>
  );
}

interface DraftFieldProps {
  label: string;
  value: string;
  problem: string;
  onClick: () => void;
}

/// A label, a value that a tap changes, and below them what is wrong with it.
function DraftField({ label, value, problem, onClick }: DraftFieldProps) {
  return (
    <>
      <button type="button" class="draft-field" data-problem={problem !== ""} onClick={onClick}>
        <span class="split">
          <span class="text-body">{label}</span>
          <span class="text-body-strong">{value}</span>
        </span>
        <Icon name="updown" size={18} />
      </button>
      <Problem text={problem} />
    </>
  );
}
