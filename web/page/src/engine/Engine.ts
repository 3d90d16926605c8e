// SPDX-License-Identifier: MIT
import type { Action, Lists, Pages } from "mivo";

/// The app behind the page. It decides everything; the page draws what it composed, and tells it what a person did.
export interface Engine {
  send(action: Action): void;
  page<Name extends keyof Pages>(name: Name): Promise<Pages[Name]>;
  /// Rows [first, first + count) of a list, as many of them as there are.
  rows<Name extends keyof Lists>(name: Name, first: number, count: number): Promise<Lists[Name][]>;
  /// `listener` hears the names of the pages and lists that may read differently; the answer ends that.
  subscribe(listener: (changed: string[]) => void): () => void;
}
