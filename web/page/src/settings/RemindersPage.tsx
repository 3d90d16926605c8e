// SPDX-License-Identifier: MIT
import { useState } from "preact/hooks";
import { Problem } from "../controls/Fields";
import { PushedPage } from "../controls/PushedPage";
import { ListGroup, SwitchRow, ValueRow } from "../controls/Rows";
import { usePage, useSend } from "../engine/Source";
import { askToNotify } from "../platform/notifications";

/// What the user wants to be told of while they do not look.
export function RemindersPage() {
  const page = usePage("reminders");
  const browser = usePage("browser");
  const send = useSend();
  const [isRefused, setRefused] = useState(false);
  if (!page) return null;
  const toggle = async (isOn: boolean, action: "didToggleGoalReminder" | "didToggleEatingWindowReminder") => {
    const isAllowed = isOn || (await askToNotify());
    setRefused(!isAllowed);
    if (isAllowed) send({ settings: action });
  };
  return (
    <PushedPage title={page.title}>
      <ListGroup note={browser?.remindersNote ?? ""}>
        <SwitchRow text={page.goalLabel} on={page.tellsGoal} onClick={() => void toggle(page.tellsGoal, "didToggleGoalReminder")} />
        <SwitchRow
          text={page.eatingWindowLabel}
          on={page.tellsEatingWindow}
          onClick={() => void toggle(page.tellsEatingWindow, "didToggleEatingWindowReminder")}
        />
        <ValueRow text={page.eatingWindow.title} value={page.eatingWindow.value} onClick={() => send({ didOpen: "eatingWindow" })} />
      </ListGroup>
      <Problem text={isRefused ? (browser?.cannotNotify ?? "") : ""} />
    </PushedPage>
  );
}
