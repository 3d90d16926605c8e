// SPDX-License-Identifier: MIT
import type { Source } from "../engine/Source";
import type { Files } from "./files";

const sampleFile = "sample.json";
const instants = ["start", "end", "date"];
const msPerDay = 86_400_000;

/// Gives a history that is empty the records of the sample that comes with the page, if one does.
export async function fillWithSample(source: Source, files: Files): Promise<void> {
  const [history, weights] = await Promise.all([source.engine.page("history"), source.engine.page("weights")]);
  if (history.count > 0 || weights.count > 0) return;
  const answer = await fetch(sampleFile);
  if (!answer.ok) return;
  files.bring([new File([endingNow(await answer.text(), Date.now())], sampleFile)]);
  source.send({ importing: { presented: "didTapImport" } });
  source.send("didDismissMessages");
  source.send({ didOpen: "statistics" });
}

/// The sample moved by whole days, so that its newest record is less than a day old.
function endingNow(sample: string, now: number): string {
  let newest = -Infinity;
  const records: unknown = JSON.parse(sample, (key, value) => {
    if (instants.includes(key) && typeof value === "string") newest = Math.max(newest, Date.parse(value));
    return value;
  });
  const moved = Math.floor((now - newest) / msPerDay) * msPerDay;
  return JSON.stringify(records, (key, value) =>
    instants.includes(key) && typeof value === "string" ? new Date(Date.parse(value) + moved).toISOString() : value,
  );
}
