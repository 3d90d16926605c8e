// SPDX-License-Identifier: MIT
import { useState } from "preact/hooks";
import { Card } from "../controls/Card";
import { LongList } from "../controls/LongList";
import { PushedPage } from "../controls/PushedPage";
import { SwipeRow } from "../controls/SwipeRow";
import { usePage, useSend } from "../engine/Source";
import { RowMenu } from "../fasting/History";

/// All weights, to be looked through and put right.
export function WeightsPage() {
  const page = usePage("weights");
  const screens = usePage("screens");
  const send = useSend();
  const [menuRow, setMenuRow] = useState(0);
  if (!page) return null;
  return (
    <PushedPage title={page.title}>
      {page.count === 0 && (
        <Card>
          <p class="text-body secondary">{page.note}</p>
        </Card>
      )}
      <LongList
        list="weightRows"
        name={page.title}
        count={page.count}
        usualHeight={64}
        onRemove={(row) => send({ didDeleteWeightOfRow: row })}
        row={(weight, row) => (
          <SwipeRow
            spoken={weight.spoken}
            isFirst={row === 0}
            onEdit={() => send({ didTapWeight: row })}
            onRemove={() => send({ didDeleteWeightOfRow: row })}
            onMenu={() => {
              setMenuRow(row);
              send({ didOpen: "weightMenu" });
            }}
          >
            <span class="weight-row">
              <span>
                <span class="text-body-strong">{weight.date}</span>
                <span class="text-label secondary">{weight.time}</span>
              </span>
              <span class="text-body-strong">{weight.weight}</span>
            </span>
          </SwipeRow>
        )}
      />
      {screens?.sheet === "weightMenu" && (
        <RowMenu
          title={page.menuTitle}
          editLabel={page.editLabel}
          removeLabel={page.removeLabel}
          onEdit={() => send({ didTapWeight: menuRow })}
          onRemove={() => send({ didDeleteWeightOfRow: menuRow })}
          onClose={() => send({ didClose: "weightMenu" })}
        />
      )}
    </PushedPage>
  );
}
