// SPDX-License-Identifier: MIT
import type { Action, Lists, Pages } from "mivo";
import type { Engine } from "./Engine";
import type { Opening } from "../../../worker/app.mjs";
import type { FromWorker, ToWorker } from "./Messages";

export type WrittenFile = Extract<FromWorker, { kind: "written" }>;

/// Why the history is not open, in a sentence.
export class NotOpened extends Error {
  constructor(
    sentence: string,
    /// It is, and there are backups.
    readonly isDamaged: boolean,
  ) {
    super(sentence);
  }
}

const closesWithin = 1000;

/// The engine in a worker of its own, where the database is.
export class WorkerEngine implements Engine {
  private readonly worker: Worker;
  private readonly listeners = new Set<(changed: string[]) => void>();
  private readonly waiting = new Map<number, (value: unknown) => void>();
  private asked = 0;
  private offered = 0;
  private opening: { done: () => void; fail: (error: Error) => void } | null = null;
  private closed: () => void = () => {};
  onWritten: (file: WrittenFile) => void = () => {};
  /// It answers no more, for which it has this sentence.
  onEnded: (sentence: string) => void = () => {};

  constructor(worker: Worker) {
    this.worker = worker;
    worker.onmessage = ({ data }: MessageEvent<FromWorker>) => this.take(data);
    worker.onerror = ({ message }) => (this.opening ? this.opening.fail(new NotOpened(message, false)) : this.onEnded(message));
  }

  /// Resolves once the history is open; else fails with a `NotOpened`.
  open(how: Opening = "asItIs"): Promise<void> {
    this.post({ kind: "open", how });
    return new Promise<void>((done, fail) => (this.opening = { done, fail })).finally(() => (this.opening = null));
  }

  /// Resolves once it has let go of the database. Nothing answers after that.
  async stop(): Promise<void> {
    this.post({ kind: "close" });
    await new Promise<void>((closed) => {
      this.closed = closed;
      setTimeout(closed, closesWithin);
    });
    this.worker.terminate();
  }

  setWatched(isNow: boolean): void {
    this.post({ kind: "watched", isNow });
  }

  send(action: Action): void {
    this.post({ kind: "action", action });
  }

  /// The paths by which actions may name these files.
  offer(files: File[]): string[] {
    return files.map((file) => {
      const path = `/${++this.offered}/${file.name}`;
      this.post({ kind: "file", path, file });
      return path;
    });
  }

  takeDatabase(): void {
    this.post({ kind: "takeDatabase" });
  }

  page<Name extends keyof Pages>(name: Name): Promise<Pages[Name]> {
    return this.ask((id) => ({ kind: "page", id, name }));
  }

  rows<Name extends keyof Lists>(name: Name, first: number, count: number): Promise<Lists[Name][]> {
    return this.ask((id) => ({ kind: "rows", id, name, first, count }));
  }

  subscribe(listener: (changed: string[]) => void): () => void {
    this.listeners.add(listener);
    return () => this.listeners.delete(listener);
  }

  private post(message: ToWorker): void {
    this.worker.postMessage(message);
  }

  private ask<Value>(question: (id: number) => ToWorker): Promise<Value> {
    const id = ++this.asked;
    return new Promise((resolve) => {
      this.waiting.set(id, resolve as (value: unknown) => void);
      this.post(question(id));
    });
  }

  private take(message: FromWorker): void {
    switch (message.kind) {
      case "opened":
        return this.opening?.done();
      case "failed":
        return this.opening?.fail(new NotOpened(message.sentence, message.isDamaged));
      case "changed":
        return this.listeners.forEach((tell) => tell(message.names));
      case "written":
        return this.onWritten(message);
      case "closed":
        return this.closed();
      case "answer":
        this.waiting.get(message.id)?.(message.value);
        this.waiting.delete(message.id);
    }
  }
}
