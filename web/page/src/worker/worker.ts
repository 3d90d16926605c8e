// SPDX-License-Identifier: MIT
// The engine, on files of the origin's own. A worker that is called "sample" has other ones, for a sample of a history.
import { loadApp, type Catalogue } from "../../../worker/app.mjs";
import { type EngineModule, events, serve } from "./serve";

declare const ENGINE_FILES: Record<string, string>;

// Without HTTPS there is no place for files; words are there all the same.
const noFolder = { async *values() {} } as unknown as FileSystemDirectoryHandle;

async function folder(): Promise<FileSystemDirectoryHandle> {
  if (!navigator.storage?.getDirectory) return noFolder;
  const root = await navigator.storage.getDirectory();
  return root.getDirectoryHandle(self.name === "sample" ? "sample" : "own", { create: true });
}

async function catalogue(language: string): Promise<Catalogue | undefined> {
  const file = ENGINE_FILES[`${language}.mjs`];
  if (!file) return undefined;
  return ((await import(new URL(file, self.location.href).href)) as { default: Catalogue }).default;
}

async function load(): Promise<EngineModule> {
  const module = await WebAssembly.compileStreaming(fetch(ENGINE_FILES["mivo-app.wasm"]!));
  const server = new URL(".", self.location.href).href.replace(/\/$/, ""); // of the votes: the one that serves the page
  return loadApp({ module, folder, languages: navigator.languages, catalogue, events, server });
}

serve(load());
