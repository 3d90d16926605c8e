// SPDX-License-Identifier: MIT
import { useState } from "preact/hooks";
import { ActionButton } from "../controls/Buttons";
import { TextField } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSource } from "../engine/Source";

/// Takes the goal weight in.
export function GoalWeightSheet() {
  const page = usePage("goalWeight");
  const source = useSource();
  const [typed, setTyped] = useState<string | null>(null);
  if (!page) return null;
  const close = () => source.send({ didClose: "goalWeight" });
  const set = async (text: string) => {
    source.send({ statistics: { goalWeightCardAction: { didTypeGoal: text } } });
    const answer = await source.engine.page("goalWeight");
    if (answer?.problem === "") close();
  };
  const text = typed ?? page.fieldText;
  return (
    <Sheet title={page.title} onClose={close}>
      <TextField name={page.title} text={text} unit={page.unit} problem={page.problem} keyboard="decimal" focus onType={setTyped} onAccept={() => void set(text)} />
      <SheetButtons>
        <ActionButton text={page.save} size="sheet" onClick={() => void set(text)} />
        <ActionButton text={page.remove} size="sheet" kind="destructive" onClick={() => void set("")} />
      </SheetButtons>
    </Sheet>
  );
}
