// SPDX-License-Identifier: MIT
import type { CardGroup, CardSwitch } from "mivo";
import { PushedPage } from "../controls/PushedPage";
import { ControlRow, ListGroup, SegmentedControl, Stepper, SwitchRow } from "../controls/Rows";
import { usePage, useRows, useSend } from "../engine/Source";

/// Which cards the statistics show, and what counts as a streak.
export function CardSettingsPage() {
  const page = usePage("cards");
  const words = usePage("words");
  const hours = useRows("hourTexts", page?.longestBreak.value ?? 0, 1)?.rows[0];
  const send = useSend();
  if (!page || !words) return null;
  const switches = (group: CardGroup, rows: readonly CardSwitch[]) =>
    rows.map(({ title, hours: detail, meaning, isShown }, row) => (
      <SwitchRow
        key={title}
        text={title}
        detail={detail}
        on={isShown}
        onClick={() => send({ didToggleCard: { group, row } })}
        {...(meaning === "" ? {} : { accent: meaning })}
      />
    ));
  return (
    <PushedPage title={page.title}>
      <ListGroup title={page.cardsTitle}>{switches("cards", page.cards)}</ListGroup>
      <ListGroup title={page.chartsTitle}>{switches("charts", page.charts)}</ListGroup>
      <ListGroup title={page.trendsTitle}>{switches("trends", page.trends)}</ListGroup>
      <ListGroup title={page.streaksTitle} note={page.streaksNote}>
        <ControlRow text={page.counted.title}>
          <SegmentedControl
            name={page.counted.title}
            options={page.counted.options}
            chosen={page.counted.chosen}
            onChoose={(place) => send({ didChooseCounted: place })}
          />
        </ControlRow>
        <SwitchRow text={page.countsBelowGoalLabel} on={page.countsBelowGoal} onClick={() => send({ settings: "didToggleBelowGoal" })} />
        <ControlRow text={page.longestBreak.title}>
          <Stepper
            {...page.longestBreak}
            name={page.longestBreak.title}
            text={hours ?? ""}
            words={words}
            onChange={(chosen) => send({ didChooseLongestBreak: chosen })}
          />
        </ControlRow>
      </ListGroup>
    </PushedPage>
  );
}
