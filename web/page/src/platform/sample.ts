// SPDX-License-Identifier: MIT
import type { Source } from "../engine/Source";
import type { Files } from "./files";

const sampleFile = "sample.json";

/// Gives a history that is empty the records of the sample that comes with the page, if one does.
export async function fillWithSample(source: Source, files: Files): Promise<void> {
  const [history, weights] = await Promise.all([source.engine.page("history"), source.engine.page("weights")]);
  if (history.count > 0 || weights.count > 0) return;
  const answer = await fetch(sampleFile);
  if (!answer.ok) return;
  files.bring([new File([await answer.blob()], sampleFile)]);
  source.send({ importing: { presented: "didTapImport" } });
  source.send("didDismissMessages");
  source.send({ didOpen: "statistics" });
}
