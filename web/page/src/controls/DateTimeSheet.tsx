// SPDX-License-Identifier: MIT
// Chooses a date and a time: day, hour and minute on three wheels, or typed as a whole.
import { useState } from "preact/hooks";
import { useSource, usePage } from "../engine/Source";
import { ActionButton, IconButton } from "./Buttons";
import { Problem, TextField } from "./Fields";
import { Sheet, SheetButtons } from "./Sheet";
import { Wheel } from "./Wheel";

interface DateTimeSheetProps {
  title: string;
  /// Of the running fast, whose start must not be just any date.
  isStart?: boolean;
  onChoose: (instant: number) => void;
  onClose: () => void;
}

export function DateTimeSheet({ title, isStart = false, onChoose, onClose }: DateTimeSheetProps) {
  const page = usePage("dateChoice");
  const source = useSource();
  const [typed, setTyped] = useState<string | null>(null);
  if (!page) return null;
  const { choice } = page;
  const problem = isStart ? page.startProblem : "";
  const turn = (action: { didTurnDay: number } | { didTurnHour: number } | { didTurnMinute: number }) => source.send({ dateChoice: action });

  // What was typed is read first; a text that is no date stays in the field.
  const take = async () => {
    if (typed === null) return page;
    source.send({ dateChoice: { didType: typed } });
    const read = await source.engine.page("dateChoice");
    if (!read || read.isRefused) return null;
    setTyped(null);
    return read;
  };
  const done = async () => {
    const read = await take();
    if (!read || (isStart && read.startProblem !== "")) return;
    onChoose(read.choice.instant);
    onClose();
  };
  return (
    <Sheet title={title} onClose={onClose}>
      {typed === null ? (
        <div class="date-heading">
          <p class="text-body-strong">{choice.text}</p>
          <IconButton icon="pencil" text={choice.typeLabel} onClick={() => setTyped(choice.typed)} />
        </div>
      ) : (
        <TextField
          name={choice.typeLabel}
          text={typed}
          placeholder={choice.typed}
          problem={page.isRefused ? choice.typedProblem : ""}
          focus
          onType={setTyped}
          onAccept={() => void take()}
        />
      )}
      <div class="wheels" dir="ltr">
        <Wheel list="days" count={choice.dayCount} value={choice.day} spoken={choice.daySpoken} page={7} home={choice.todayPlace} onTurn={(place) => turn({ didTurnDay: place })} />
        <Wheel list="hours" count={24} value={choice.hour} spoken={choice.hourSpoken} page={6} onTurn={(place) => turn({ didTurnHour: place })} />
        <Wheel list="minutes" count={60} value={choice.minute} spoken={choice.minuteSpoken} page={10} onTurn={(place) => turn({ didTurnMinute: place })} />
      </div>
      <Problem text={problem} centred />
      <SheetButtons>
        <ActionButton text={choice.doneLabel} size="sheet" disabled={problem !== ""} onClick={() => void done()} />
      </SheetButtons>
    </Sheet>
  );
}
