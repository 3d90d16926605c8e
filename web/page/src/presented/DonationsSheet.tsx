// SPDX-License-Identifier: MIT
import type { DonationsFeatureAction } from "mivo";
import { ActionButton } from "../controls/Buttons";
import { Problem } from "../controls/Fields";
import { Sheet, SheetButtons } from "../controls/Sheet";
import { usePage, useSend } from "../engine/Source";

/// The ways to give.
export function DonationsSheet() {
  const page = usePage("donations");
  const send = useSend();
  if (!page) return null;
  const act = (action: DonationsFeatureAction) => send({ statistics: { destination: { presented: { donations: action } } } });
  const close = () => send({ didClose: "donations" });
  return (
    <Sheet title={page.title} onClose={close}>
      <p class="text-body secondary">{page.text}</p>
      {page.groups.map(({ label, choices }) => (
        <div class="stack" key={label}>
          <p class="text-label secondary">{label}</p>
          <div class="thirds">
            {choices.map(({ id, price, spoken, isChosen }) => (
              <ActionButton
                key={id}
                text={price}
                spoken={spoken}
                size="large"
                kind={isChosen ? "primary" : "field"}
                pressed={isChosen}
                onClick={() => act({ didChooseProduct: id })}
              />
            ))}
          </div>
        </div>
      ))}
      <Problem text={page.failure} />
      <SheetButtons>
        <ActionButton text={page.button} size="sheet" onClick={() => act("didTapButton")} />
        <ActionButton text={page.close} size="sheet" kind="plain" onClick={close} />
      </SheetButtons>
    </Sheet>
  );
}
