// SPDX-License-Identifier: MIT
import type { Action } from "../engine/Action";
import type { FromWorker, ToWorker } from "../engine/Messages";

/// The compiled engine, as the worker sees it.
export interface EngineModule {
  /// Nothing once the history is open, or a sentence that says why it is not.
  open(): Promise<string | null>;
  send(action: Action): void;
  page(name: string): unknown;
  rows(name: string, first: number, count: number): unknown[];
  offer(path: string, file: File): void;
  database(): Uint8Array<ArrayBuffer>;
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
  let last: Promise<unknown> = loading;
  self.onmessage = ({ data }: MessageEvent<ToWorker>) => {
    last = last.then(async () => answer(await loading, data));
  };
}

async function answer(engine: EngineModule, message: ToWorker): Promise<void> {
  switch (message.kind) {
    case "open": {
      const sentence = await engine.open();
      return post(sentence === null ? { kind: "opened" } : { kind: "failed", sentence });
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
      return events.written("mivo.db", "application/vnd.sqlite3", engine.database());
  }
}
