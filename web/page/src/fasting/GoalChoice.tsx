// SPDX-License-Identifier: MIT
import type { Screen } from "mivo";
import { ActionButton, Chip } from "../controls/Buttons";
import { TextField } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";

/// How long a fast is meant to be: the usual lengths, or one that is typed.
export function GoalChoice({ labelled, onAccept }: { labelled: boolean; onAccept: () => void }) {
  const choice = usePage("goalChoice");
  const send = useSend();
  if (!choice) return null;
  return (
    <div class="stack">
      {labelled && <p class="text-label secondary">{choice.title}</p>}
      <div class="chips" role="radiogroup" aria-label={choice.title}>
        {choice.offers.map(({ text, isChosen }, place) => (
          <Chip text={text} chosen={isChosen} onClick={() => send({ goalChoice: { didPick: place } })} />
        ))}
        <Chip text={choice.customText} chosen={choice.isTyped} onClick={() => send({ goalChoice: "didOpenField" })} />
      </div>
      {choice.isTyped && (
        <TextField
          name={choice.fieldText}
          text={choice.typed}
          unit={choice.unit}
          placeholder={choice.example}
          problem={choice.problem}
          focus
          onType={(text) => send({ goalChoice: { didType: text } })}
          onAccept={() => choice.canSave && onAccept()}
        />
      )}
      {choice.hint !== "" && <p class="text-caption secondary">{choice.hint}</p>}
    </div>
  );
}

interface GoalSheetProps {
  screen: Screen;
  onChoose: (seconds: number) => void;
}

/// Changes how long fasts are meant to be.
export function GoalSheet({ screen, onChoose }: GoalSheetProps) {
  const choice = usePage("goalChoice");
  const send = useSend();
  const close = () => send({ didClose: screen });
  const save = () => {
    if (choice) onChoose(choice.seconds);
    close();
  };
  return (
    <Sheet title={choice?.title ?? ""} onClose={close}>
      <GoalChoice labelled={false} onAccept={save} />
      <SheetButtons>
        <ActionButton text={choice?.saveLabel ?? ""} size="sheet" disabled={!choice?.canSave} onClick={save} />
      </SheetButtons>
    </Sheet>
  );
}
