// SPDX-License-Identifier: MIT
// What stands over everything, by the screen that is open. Menus of rows are with their lists.
import type { Action, Choice, Screen } from "mivo";
import type { ShownTable } from "../App";
import { ChoiceSheet } from "../controls/ChoiceSheet";
import { DateTimeSheet } from "../controls/DateTimeSheet";
import { ExportSheet } from "../data/ExportSheet";
import { HealthSheet } from "../data/HealthSheet";
import { ImportSheet } from "../data/ImportSheet";
import { RestoreSheet } from "../data/RestoreSheet";
import { SeveralFastsSheet } from "../data/SeveralFastsSheet";
import { usePage, useSend } from "../engine/Source";
import { FastSheet } from "../fasting/FastSheet";
import { GoalSheet } from "../fasting/GoalChoice";
import { DonationsSheet } from "./DonationsSheet";
import { FeedbackSheet } from "./FeedbackSheet";
import { GoalWeightSheet } from "./GoalWeightSheet";
import { RepairSheet } from "./RepairSheet";
import { TableSheet } from "./TableSheet";
import { WeightSheet } from "./WeightSheet";

interface SheetsProps {
  screen: Screen | "";
  table: ShownTable | null;
  onPrint: () => void;
}

export function Sheets({ screen, table, onPrint }: SheetsProps) {
  const send = useSend();
  switch (screen) {
    case "editFast":
    case "addFast":
      return <FastSheet screen={screen} key={screen} />;
    case "severalFasts":
      return <SeveralFastsSheet />;
    case "fastGoal":
      return <GoalSheet screen={screen} onChoose={(seconds) => send({ didChangeGoal: seconds })} />;
    case "defaultGoal":
      return <GoalSheet screen={screen} onChoose={(seconds) => send({ settings: { didChooseGoal: seconds } })} />;
    case "fastStart":
      return <FastStartSheet />;
    case "date":
      return <WeightDateSheet />;
    case "table":
      return table && <TableSheet table={table} />;
    case "overlaps":
      return <RepairSheet />;
    case "donations":
      return <DonationsSheet />;
    case "feedback":
      return <FeedbackSheet />;
    case "goalWeight":
      return <GoalWeightSheet />;
    case "editWeight":
      return <WeightSheet />;
    case "import":
      return <ImportSheet />;
    case "export":
      return <ExportSheet onPrint={onPrint} />;
    case "health":
      return <HealthSheet />;
    case "restore":
      return <RestoreSheet />;
    case "weightUnit":
    case "firstWeekday":
    case "language":
    case "appearance":
      return <SettingSheet screen={screen} key={screen} />;
    case "eatingWindow":
      return <EatingWindowSheet />;
    default:
      return null;
  }
}

function FastStartSheet() {
  const fasting = usePage("fasting");
  const send = useSend();
  return (
    <DateTimeSheet
      title={fasting?.startLabel ?? ""}
      isStart
      onChoose={(instant) => send({ didChangeStart: instant })}
      onClose={() => send({ didClose: "fastStart" })}
    />
  );
}

function WeightDateSheet() {
  const form = usePage("addWeight");
  const send = useSend();
  return (
    <DateTimeSheet
      title={form?.dateTitle ?? ""}
      onChoose={(instant) => send({ statistics: { addWeightLogAction: { didChangeDate: instant } } })}
      onClose={() => send({ didClose: "date" })}
    />
  );
}

type Setting = "weightUnit" | "firstWeekday" | "language" | "appearance";

const chosen: { [setting in Setting]: (place: number) => Action } = {
  weightUnit: (place) => ({ didChooseWeightUnit: place }),
  firstWeekday: (place) => ({ didChooseFirstWeekday: place }),
  language: (place) => ({ didChooseLanguage: place }),
  appearance: (place) => ({ didChooseAppearance: place }),
};

function SettingSheet({ screen }: { screen: Setting }) {
  const choice: Choice | undefined = usePage("settings")?.[screen];
  const send = useSend();
  return choice ? <ChoiceSheet choice={choice} capitalized={screen === "firstWeekday"} onChoose={(place) => send(chosen[screen](place))} onClose={() => send({ didClose: screen })} /> : null;
}

function EatingWindowSheet() {
  const choice = usePage("reminders")?.eatingWindow;
  const send = useSend();
  return choice ? (
    <ChoiceSheet choice={choice} onChoose={(place) => send({ didChooseEatingWindow: place })} onClose={() => send({ didClose: "eatingWindow" })} />
  ) : null;
}
