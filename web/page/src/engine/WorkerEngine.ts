// SPDX-License-Identifier: MIT
import type { Action } from "./Action";
import type { Engine } from "./Engine";
import type { FromWorker, ToWorker } from "./Messages";
import type { Lists, Pages } from "./Pages";

export type WrittenFile = Extract<FromWorker, { kind: "written" }>;

/// The engine in a worker of its own, where the database is.
export class WorkerEngine implements Engine {
  private readonly worker: Worker;
  private readonly listeners = new Set<(changed: string[]) => void>();
  private readonly waiting = new Map<number, (value: unknown) => void>();
  private asked = 0;
  private offered = 0;
  private opening: { done: () => void; fail: (error: Error) => void } | null = null;
  onWritten: (file: WrittenFile) => void = () => {};

  constructor(worker: Worker) {
    this.worker = worker;
    worker.onmessage = ({ data }: MessageEvent<FromWorker>) => this.take(data);
    worker.onerror = (event) => this.opening?.fail(new Error(event.message));
  }

  /// Resolves once the history is open; else fails with a sentence that says why it is not.
  open(): Promise<void> {
    this.post({ kind: "open" });
    return new Promise((done, fail) => (this.opening = { done, fail }));
  }

  /// Lets go of the database. Nothing answers after that.
  stop(): void {
    this.worker.terminate();
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

  page<Name extends keyof Pages>(name: Name): Promise<Pages[Name] | null> {
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
        return this.opening?.fail(new Error(message.sentence));
      case "changed":
        return this.listeners.forEach((tell) => tell(message.names));
      case "written":
        return this.onWritten(message);
      case "answer":
        this.waiting.get(message.id)?.(message.value);
        this.waiting.delete(message.id);
    }
  }
}
