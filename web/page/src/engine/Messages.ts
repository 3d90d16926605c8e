// SPDX-License-Identifier: MIT
import type { Action } from "mivo";
import type { Opening } from "../../../worker/app.mjs";

// What page and worker say to each other.

export type ToWorker =
  /// Opens the history. Words can be asked for before.
  | { kind: "open"; how: Opening }
  | { kind: "action"; action: Action }
  | { kind: "page"; id: number; name: string }
  | { kind: "rows"; id: number; name: string; first: number; count: number }
  /// A file that was chosen, dropped or shared, before the action that names its path.
  | { kind: "file"; path: string; file: File }
  /// The database as it is, to be written like an export.
  | { kind: "takeDatabase" }
  /// Whether anybody can see the page.
  | { kind: "watched"; isNow: boolean }
  /// Lets go of the database. Nothing is answered after that.
  | { kind: "close" };

export type FromWorker =
  | { kind: "opened" }
  /// `isDamaged`: it is, and there are backups.
  | { kind: "failed"; sentence: string; isDamaged: boolean }
  | { kind: "answer"; id: number; value: unknown }
  | { kind: "changed"; names: string[] }
  /// What an action wrote, for the person to take.
  | { kind: "written"; name: string; type: string; bytes: Uint8Array<ArrayBuffer> }
  | { kind: "closed" };
