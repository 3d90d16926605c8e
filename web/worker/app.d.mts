// SPDX-License-Identifier: MIT

/// Its texts, by the English ones, as catalogues.mjs writes them.
export interface Catalogue {
  form: (count: number) => number;
  texts: Record<string, string | string[]>;
}

export interface Surroundings {
  module: WebAssembly.Module;
  /// Of the files: one of the origin's private file system. Asked for when it is needed.
  folder: () => Promise<FileSystemDirectoryHandle>;
  /// The user's, the first one first.
  languages: readonly string[];
  /// Nothing for English, and for what there is none for.
  catalogue: (language: string) => Promise<Catalogue | undefined>;
  events: {
    /// The names of pages and lists that may read differently.
    changed(names: string[]): void;
    /// What an action wrote.
    written(name: string, type: string, bytes: Uint8Array<ArrayBuffer>): void;
  };
  /// The server of the roadmap and its votes, without a slash at the end; none without one.
  server?: string;
  /// How a file is read at once; a worker's FileReaderSync, if not said otherwise.
  readPiece?: (file: File, at: number, count: number) => Uint8Array;
}

/// What becomes of a damaged history that has backups: nothing, and it is not opened; or the newest backup that can be
/// read takes its place, or an empty one does. The damaged file is kept.
export type Opening = "asItIs" | "fromNewestBackup" | "anew";

export interface App {
  /// Nothing once the history is open, or a sentence that says why it is not. May be tried again.
  open(how?: Opening): Promise<string | null>;
  /// After a failure: whether the history is damaged and has backups.
  isDamaged(): boolean;
  /// Throws an Error for what is no action. Its change is on disk when it returns.
  send(action: unknown): void;
  /// Null for a sheet that was not open yet; "words" and "browser" are there before the history is open. Throws an Error
  /// for a name that no page has.
  page(name: string): unknown;
  rows(name: string, first: number, count: number): unknown[];
  /// A file that actions may name by this path.
  offer(path: string, file: File): void;
  /// The whole database, for the desktop to open.
  database(): Uint8Array<ArrayBuffer>;
  /// Whether anybody can see the pages.
  setWatched(isNow: boolean): void;
  /// The system's time zone may have become another one.
  lookAround(): void;
  close(): void;
}

/// Ready to say words; the history is opened by `open`.
export function loadApp(surroundings: Surroundings): Promise<App>;
