// SPDX-License-Identifier: MIT
// Files that come in, and files that a person takes.
import { createContext } from "preact";
import { useContext } from "preact/hooks";
import type { WorkerEngine, WrittenFile } from "../engine/WorkerEngine";

/// What is done with files.
export interface Files {
  /// Shows what they hold; nothing of it is taken in before the user agrees.
  bring: (files: File[]) => void;
  /// The paths by which actions may name them.
  offer: (files: File[]) => string[];
  takeDatabase: () => void;
}

export function filesOf(engine: WorkerEngine): Files {
  return {
    offer: (files) => engine.offer(files),
    bring: (files) => {
      if (files.length > 0) engine.send({ didChooseFiles: engine.offer(files) });
    },
    takeDatabase: () => engine.takeDatabase(),
  };
}

const Context = createContext<Files | null>(null);
export const FilesProvider = Context.Provider;

export function useFiles(): Files {
  const files = useContext(Context);
  if (!files) throw new Error("no files");
  return files;
}

/// Has the user choose; none where they do not.
export function chooseFiles({ many }: { many: boolean }): Promise<File[]> {
  const input = document.createElement("input");
  input.type = "file";
  input.multiple = many;
  return new Promise((resolve) => {
    input.onchange = () => resolve([...(input.files ?? [])]);
    input.oncancel = () => resolve([]);
    input.click();
  });
}

const keptFor = 60_000;

/// Through the share sheet on phones, where that takes such files; else as a download.
export async function hand({ name, type, bytes }: WrittenFile): Promise<void> {
  const file = new File([bytes], name, { type });
  if (matchMedia("(pointer: coarse)").matches && navigator.canShare?.({ files: [file] })) {
    const isShared = await navigator.share({ files: [file] }).then(
      () => true,
      (error: DOMException) => error.name === "AbortError", // the user thought better of it
    );
    if (isShared) return;
  }
  const link = document.createElement("a");
  link.href = URL.createObjectURL(file);
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), keptFor);
}

const sharedFiles = "mivo-shared";

/// What another app shared: the service worker has put it aside.
export async function takeSharedFiles(): Promise<File[]> {
  if (!(await caches.has(sharedFiles))) return [];
  const cache = await caches.open(sharedFiles);
  const files = await Promise.all(
    (await cache.keys()).map(async (request) => {
      const name = decodeURIComponent(new URL(request.url).pathname.split("/").at(-1) ?? "");
      return new File([await (await cache.match(request))!.blob()], name);
    }),
  );
  await caches.delete(sharedFiles);
  return files;
}
