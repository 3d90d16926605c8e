// SPDX-License-Identifier: MIT
import type { Action } from "mivo";
import type { FromWorker, Opening, ToWorker } from "../engine/Messages";

/// The compiled engine, as the worker sees it.
export interface EngineModule {
  /// Nothing once the history is open, or a sentence that says why it is not.
  open(how: Opening): Promise<string | null>;
  /// After a failure: whether the history is damaged and has backups.
  isDamaged(): boolean;
  /// What it changes is on disk when it returns.
  send(action: Action): void;
  page(name: string): unknown;
  rows(name: string, first: number, count: number): unknown[];
  offer(path: string, file: File): void;
  database(): Uint8Array<ArrayBuffer>;
  setWatched(isNow: boolean): void;
  close(): void;
}

/// What the module tells of its own.
export interface EngineEvents {
  changed(names: string[]): void;
  written(name: string, type: string, bytes: Uint8Array<ArrayBuffer>): void;
}

const post = (message: FromWorker, transfer: Transferable[] = []) => self.postMessage(message, { transfer });

export const events: EngineEvents = {
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
