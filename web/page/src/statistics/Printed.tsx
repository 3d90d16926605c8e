// SPDX-License-Identifier: MIT
import { useEffect, useLayoutEffect } from "preact/hooks";
import { usePage } from "../engine/Source";
import { StatisticsPage } from "./StatisticsPage";

const settlesWithin = 500;

/// The statistics on paper: in place of the window while the browser prints, in its light colours.
export function Printed({ onDone }: { onDone: () => void }) {
  const isThere = usePage("printedStatistics") !== undefined;
  useLayoutEffect(() => {
    const root = document.documentElement;
    const before = root.dataset["appearance"];
    root.dataset["appearance"] = "light";
    return () => {
      root.dataset["appearance"] = before;
    };
  }, []);
  useEffect(() => {
    if (!isThere) return;
    addEventListener("afterprint", onDone);
    const timer = setTimeout(() => print(), settlesWithin); // charts are drawn once their width is known
    return () => {
      clearTimeout(timer);
      removeEventListener("afterprint", onDone);
    };
  }, [isThere]);
  return (
    <div class="printed">
      <StatisticsPage page="printedStatistics" wide onTable={() => {}} />
    </div>
  );
}
