// SPDX-License-Identifier: MIT
import type { HistoryRow } from "mivo";
import { useRef, useState } from "preact/hooks";
import { GoalMark, ZoneStrip } from "../charts/ZoneStrip";
import { ActionButton, IconButton } from "../controls/Buttons";
import { Card } from "../controls/Card";
import { CautionLine } from "../controls/Icon";
import { goToRow, LongList } from "../controls/LongList";
import { NumberText } from "../controls/NumberText";
import { ChoiceRow } from "../controls/Rows";
import { Sheet } from "../controls/Sheet";
import { SwipeRow } from "../controls/SwipeRow";
import { usePage, useRows, useSend } from "../engine/Source";

/// The fasts that have ended, the latest first.
export function History() {
  const page = usePage("history");
  const screens = usePage("screens");
  const send = useSend();
  const place = useRef<HTMLElement>(null);
  const [menuRow, setMenuRow] = useState(0);
  if (!page) return null;
  const openMenu = (row: number) => {
    setMenuRow(row);
    send({ didOpen: "fastMenu" });
  };
  return (
    <section class="history" ref={place}>
      <header class="history-title">
        <h2 class="text-section">{page.title}</h2>
        {page.hasMonths && <IconButton icon="calendar" text={page.monthsLabel} onClick={() => send({ didOpen: "months" })} />}
        <ActionButton kind="plain" icon="plus" text={page.addLabel} onClick={() => send({ didOpen: "addFast" })} />
      </header>
      {page.count === 0 && (
        <Card>
          <p class="text-body secondary">{page.note}</p>
        </Card>
      )}
      <LongList
        list="historyRows"
        name={page.title}
        count={page.count}
        usualHeight={80}
        onRemove={(row) => send({ didDeleteFastOfRow: row })}
        row={(fast, row) => (
          <SwipeRow
            spoken={fast.spoken}
            isFirst={row === 0}
            onEdit={() => send({ didTapFast: row })}
            onRemove={() => send({ didDeleteFastOfRow: row })}
            onMenu={() => openMenu(row)}
          >
            <HistoryRowFace fast={fast} span={page.scaleSeconds} />
          </SwipeRow>
        )}
      />
      {screens?.sheet === "fastMenu" && (
        <RowMenu
          title={page.menuTitle}
          editLabel={page.editLabel}
          removeLabel={page.removeLabel}
          onEdit={() => send({ didTapFast: menuRow })}
          onRemove={() => send({ didDeleteFastOfRow: menuRow })}
          onClose={() => send({ didClose: "fastMenu" })}
        />
      )}
      {screens?.sheet === "months" && (
        <MonthSheet title={page.monthsLabel} onChoose={(row) => goToRow(place.current?.querySelector<HTMLElement>(".long-list") ?? null, row)} />
      )}
    </section>
  );
}

function HistoryRowFace({ fast, span }: { fast: HistoryRow; span: number }) {
  return (
    <span class="history-row">
      <span class="row-top">
        <span>
          <span class="text-body-strong">{fast.date}</span>
          <span class="text-label secondary">{fast.times}</span>
        </span>
        <span class="trailing">
          <NumberText text={fast.length} style="number-row" even />
          <span class="text-label secondary">{fast.goal}</span>
        </span>
      </span>
      <span class="row-strip">
        <ZoneStrip seconds={fast.seconds} span={span} />
        <GoalMark fraction={fast.goalFraction} />
      </span>
      {fast.note !== "" && (
        <span class="row-note text-label secondary" dir="auto">
          {fast.note}
        </span>
      )}
      {fast.overlap !== "" && <CautionLine text={fast.overlap} />}
    </span>
  );
}

interface RowMenuProps {
  title: string;
  editLabel: string;
  removeLabel: string;
  onEdit: () => void;
  onRemove: () => void;
  onClose: () => void;
}

/// What can be done with a row.
export function RowMenu({ title, editLabel, removeLabel, onEdit, onRemove, onClose }: RowMenuProps) {
  const act = (then: () => void) => () => {
    onClose();
    then();
  };
  return (
    <Sheet title={title} onClose={onClose}>
      <ChoiceRow text={editLabel} onClick={act(onEdit)} />
      <ChoiceRow text={removeLabel} onClick={act(onRemove)} />
    </Sheet>
  );
}

const mostMonths = 12 * 200;

function MonthSheet({ title, onChoose }: { title: string; onChoose: (row: number) => void }) {
  const months = useRows("historyMonths", 0, mostMonths);
  const send = useSend();
  const close = () => send({ didClose: "months" });
  return (
    <Sheet title={title} onClose={close}>
      <div class="lines">
        {months?.rows.map(({ name, fasts, row }) => (
          <button
            type="button"
            class="row month text-body"
            key={row}
            onClick={() => {
              close();
              setTimeout(() => onChoose(row)); // once the sheet has given the keys back
            }}
          >
            <span>{name}</span>
            <span class="secondary">{fasts}</span>
          </button>
        ))}
      </div>
    </Sheet>
  );
}
