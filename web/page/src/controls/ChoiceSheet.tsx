// SPDX-License-Identifier: MIT
import type { Choice } from "mivo";
import { ChoiceRow } from "./Rows";
import { Sheet } from "./Sheet";

interface ChoiceSheetProps {
  choice: Choice;
  capitalized?: boolean;
  onChoose: (place: number) => void;
  onClose: () => void;
}

/// One of a few, in a sheet that a choice closes.
export function ChoiceSheet({ choice, capitalized = false, onChoose, onClose }: ChoiceSheetProps) {
  const choose = (place: number) => {
    onChoose(place);
    onClose();
  };
  return (
    <Sheet title={choice.title} onClose={onClose}>
      <div role="radiogroup" aria-label={choice.title}>
        {choice.options.map((option, place) => (
          <ChoiceRow text={option} chosen={place === choice.chosen} capitalized={capitalized} onClick={() => choose(place)} />
        ))}
      </div>
    </Sheet>
  );
}
