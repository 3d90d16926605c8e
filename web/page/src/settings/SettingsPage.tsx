// SPDX-License-Identifier: MIT
// What the user can choose. What belongs to the statistics, and what the app is, have a page of their own.
import type { Screen } from "mivo";
import { ControlRow, ListGroup, Stepper, SwitchRow, ValueRow } from "../controls/Rows";
import { usePage, useRows, useSend } from "../engine/Source";
import { StorageGroup } from "../platform/StorageGroup";

export function SettingsPage() {
  const page = usePage("settings");
  const reminders = usePage("reminders");
  const words = usePage("words");
  const textSize = useRows("percentTexts", page?.textSize.value ?? 100, 1)?.rows[0];
  const send = useSend();
  if (!page || !words) return null;
  const open = (screen: Screen) => () => send({ didOpen: screen });
  const chooseGoal = () => {
    send({ goalChoice: { didBegin: page.goalSeconds } });
    send({ didOpen: "defaultGoal" });
  };
  return (
    <main class="page settings">
      <header class="title-bar">
        <h1 class="text-title">{page.title}</h1>
      </header>
      <ListGroup>
        <ValueRow icon="statistics" text={page.cardsLabel} onClick={open("cards")} />
        <ValueRow icon="bell" text={reminders?.title ?? ""} onClick={open("reminders")} />
      </ListGroup>
      <ListGroup title={page.general}>
        <ValueRow icon="fasting" text={page.goalLabel} value={page.goal} onClick={chooseGoal} />
        <ValueRow icon="scale" text={page.weightUnit.title} value={page.weightUnit.value} onClick={open("weightUnit")} />
        <ValueRow icon="calendar" text={page.firstWeekday.title} value={page.firstWeekday.value} capitalized onClick={open("firstWeekday")} />
        <ValueRow icon="globe" text={page.language.title} value={page.language.value} onClick={open("language")} />
        <ValueRow icon="sun" text={page.appearance.title} value={page.appearance.value} onClick={open("appearance")} />
        <ControlRow icon="textSize" text={page.textSize.title}>
          <Stepper
            {...page.textSize}
            name={page.textSize.title}
            text={textSize ?? ""}
            words={words}
            onChange={(percent) => send({ didChooseTextSize: percent })}
          />
        </ControlRow>
        <SwitchRow
          icon="motion"
          text={page.reducedMotionLabel}
          on={page.reducesMotion}
          onClick={() => send({ settings: "didToggleReducedMotion" })}
        />
      </ListGroup>
      <ListGroup title={page.data} note={page.dataNote}>
        <ValueRow icon="inbox" text={page.importLabel} onClick={open("import")} />
        <ValueRow icon="health" text={page.healthLabel} value={page.linkedHealth} onClick={open("health")} />
        <ValueRow icon="outbox" text={page.exportLabel} onClick={open("export")} />
        <ValueRow icon="safe" text={page.backupsLabel} value={page.newestBackup} onClick={open("backups")} />
      </ListGroup>
      <StorageGroup />
      <ListGroup>
        <ValueRow icon="info" text={page.aboutLabel} value={page.version} onClick={open("about")} />
      </ListGroup>
    </main>
  );
}
