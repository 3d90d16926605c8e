// SPDX-License-Identifier: MIT
import type { FastingPage, ZoneTimeText } from "mivo";
import { ZoneRing } from "../charts/ZoneRing";
import { ActionButton } from "../controls/Buttons";
import { Card } from "../controls/Card";
import { CautionLine, Icon, Swatch } from "../controls/Icon";
import { NumberText } from "../controls/NumberText";
import { useSend } from "../engine/Source";

/// The ring, the time in each zone, what can be changed, and the button that starts or ends a fast.
export function FastCard({ page }: { page: FastingPage }) {
  const send = useSend();
  const hasBegun = page.elapsed !== "";
  const chooseStart = () => {
    if (page.started !== null) send({ dateChoice: { didBegin: page.started } });
    send({ didOpen: "fastStart" });
  };
  const chooseGoal = () => {
    send({ goalChoice: { didBegin: page.goalSeconds } });
    send({ didOpen: "fastGoal" });
  };
  return (
    <Card class="fast-card">
      <div class="ring-box">
        <ZoneRing seconds={page.ringSeconds} span={page.ringSpan} isEating={page.isEating} marks={page.marks} />
        <div class="ring-words">
          {hasBegun ? (
            <>
              <p class="text-body-strong">
                <Swatch accent={page.zone} />
                {page.zoneName}
              </p>
              <p role="timer" aria-label={page.spoken} class={page.elapsed.length > 8 ? "text-timer long" : "text-timer"} dir="ltr">
                {page.elapsed}
              </p>
              <p class="text-label secondary">{page.goalText}</p>
            </>
          ) : (
            <>
              <p class="text-headline">{page.invitation}</p>
              <p class="text-label secondary">{page.invitationDetail}</p>
            </>
          )}
        </div>
      </div>
      {page.isRunning && <ZoneTimes zones={page.zones} />}
      <CautionLine text={page.warning} />
      <div class="facts">
        {page.startText !== "" && (
          <FactTile label={page.startLabel} value={page.startText} onClick={page.isRunning ? chooseStart : undefined} />
        )}
        <FactTile label={page.goalLabel} value={page.goal} onClick={chooseGoal} />
      </div>
      <ActionButton
        text={page.button}
        kind={page.isRunning ? "secondary" : "data"}
        size="large"
        icon={page.isRunning ? "stop" : "play"}
        onClick={() => send("didTapFastingButton")}
      />
    </Card>
  );
}

/// How long a fast was in each zone: names over times, spread over the width.
export function ZoneTimes({ zones }: { zones: readonly ZoneTimeText[] }) {
  return (
    <ul class="zone-times">
      {zones.map(({ zone, name, duration, isPresent }) => (
        <li key={zone} class={isPresent ? "present" : undefined}>
          <span class="text-caption">
            <Swatch accent={zone} />
            {name}
          </span>
          <NumberText text={duration} style="number-row" even={isPresent} />
        </li>
      ))}
    </ul>
  );
}

interface FactTileProps {
  label: string;
  value: string;
  onClick: (() => void) | undefined;
}

/// A label over a value, which a tap may change.
function FactTile({ label, value, onClick }: FactTileProps) {
  const face = (
    <>
      <span class="text-label secondary">
        {label}
        {onClick && <Icon name="pencil" size={16} />}
      </span>
      <span class="text-body-strong">{value}</span>
    </>
  );
  if (!onClick) return <div class="fact-tile">{face}</div>;
  return (
    <button type="button" class="fact-tile" onClick={onClick}>
      {face}
    </button>
  );
}
