// SPDX-License-Identifier: MIT
// Pages as components read them: each is fetched when it is first wanted, and anew when the engine says that it reads
// differently. All that one action changed is fetched before any of it is drawn.
import type { Action, Lists, Pages } from "mivo";
import { createContext, type ComponentChildren } from "preact";
import { useContext, useEffect, useState } from "preact/hooks";
import type { Engine } from "./Engine";

export type PageName = keyof Pages;
export type ListName = keyof Lists;

export class Source {
  readonly engine: Engine;
  private readonly pages = new Map<string, unknown>();
  private readonly watchers = new Map<string, Set<() => void>>();

  constructor(engine: Engine) {
    this.engine = engine;
    engine.subscribe((changed) => void this.refresh(changed));
  }

  send = (action: Action): void => this.engine.send(action);

  read<Name extends PageName>(name: Name): NonNullable<Pages[Name]> | undefined {
    return this.pages.get(name) as NonNullable<Pages[Name]> | undefined;
  }

  async load(names: PageName[]): Promise<void> {
    await Promise.all(
      names.map(async (name) => {
        const page = await this.engine.page(name);
        if (page !== null) this.pages.set(name, page); // else it stays as it was last
      }),
    );
  }

  /// `changed` is called after the page, or a row of the list, became another one.
  watch(name: PageName | ListName, changed: () => void): () => void {
    const watching = this.watchers.get(name) ?? new Set();
    this.watchers.set(name, watching.add(changed));
    return () => watching.delete(changed);
  }

  private isWatched = (name: string): boolean => (this.watchers.get(name)?.size ?? 0) > 0;

  private async refresh(changed: string[]): Promise<void> {
    const watched = changed.filter(this.isWatched);
    for (const name of changed) if (!this.isWatched(name)) this.pages.delete(name);
    await this.load(watched.filter((name) => this.pages.has(name)) as PageName[]);
    for (const name of watched) this.watchers.get(name)?.forEach((tell) => tell());
  }
}

const Context = createContext<Source | null>(null);

export function SourceProvider({ source, children }: { source: Source; children: ComponentChildren }) {
  return <Context.Provider value={source}>{children}</Context.Provider>;
}

export function useSource(): Source {
  const source = useContext(Context);
  if (!source) throw new Error("no engine");
  return source;
}

export function useSend(): (action: Action) => void {
  return useSource().send;
}

/// A page as it reads now; nothing until it was fetched for the first time.
export function usePage<Name extends PageName>(name: Name): NonNullable<Pages[Name]> | undefined {
  const source = useSource();
  const [, redraw] = useState({});
  useEffect(() => {
    const end = source.watch(name, () => redraw({}));
    if (source.read(name) === undefined) void source.load([name]).then(() => redraw({}));
    return end;
  }, [source, name]);
  return source.read(name);
}

/// Rows of a list, and the place of the first one.
export interface Rows<Row> {
  first: number;
  rows: Row[];
}

/// Rows [first, first + count) of a list, and again whenever one of them may read differently. Until others are there, the
/// ones before stay.
export function useRows<Name extends ListName>(name: Name, first: number, count: number): Rows<Lists[Name]> | undefined {
  const source = useSource();
  const [shown, setShown] = useState<Rows<Lists[Name]>>();
  useEffect(() => {
    let isWanted = true;
    const fetch = () =>
      void source.engine.rows(name, first, count).then((rows) => {
        if (isWanted) setShown({ first, rows });
      });
    fetch();
    const end = source.watch(name, fetch);
    return () => {
      isWanted = false;
      end();
    };
  }, [source, name, first, count]);
  return shown;
}
