// SPDX-License-Identifier: MIT
import type { Action } from "mivo";
import type { App, Surroundings } from "../../../worker/app.mjs";
import type { FromWorker, ToWorker } from "../engine/Messages";

/// The compiled app, as the worker sees it.
export type EngineModule = Omit<App, "send" | "lookAround"> & { send(action: Action): void };

const post = (message: FromWorker, transfer: Transferable[] = []) => self.postMessage(message, { transfer });

/// What the app tells of its own.
export const events: Surroundings["events"] = {
  changed: (names) => post({ kind: "changed", names }),
  written: (name, type, bytes) => post({ kind: "written", name, type, bytes }, [bytes.buffer]),
};

/// Answers the page, in the order in which it asks.
export function serve(loading: Promise<EngineModule>): void {
  let last: Promise<unknown> = loading.catch(end);
  self.onmessage = ({ data }: MessageEvent<ToWorker>) => {
    last = last.then(async () => answer(await loading, data)).catch(tell);
  };
}

// The page hears of it as of any error of a worker.
function end(error: unknown): void {
  setTimeout(() => {
    throw error;
  });
}

// What the engine does not take is a fault of the page's, and the next question is answered all the same.
function tell(error: unknown): void {
  if (error instanceof WebAssembly.RuntimeError || !(error instanceof Error)) return end(error);
  console.error(error);
}

async function answer(engine: EngineModule, message: ToWorker): Promise<void> {
  switch (message.kind) {
    case "open": {
      const sentence = await engine.open(message.how);
      return post(sentence === null ? { kind: "opened" } : { kind: "failed", sentence, isDamaged: engine.isDamaged() });
    }
    case "action":
      return engine.send(message.action);
    case "page":
      return post({ kind: "answer", id: message.id, value: engine.page(message.name) });
    case "rows":
      return post({ kind: "answer", id: message.id, value: engine.rows(message.name, message.first, message.count) });
    case "file":
      return engine.offer(message.path, message.file);
    case "takeDatabase":
      return events.written("mivo.sqlite", "application/vnd.sqlite3", engine.database());
    case "watched":
      return engine.setWatched(message.isNow);
    case "close":
      engine.close();
      return post({ kind: "closed" });
  }
}
