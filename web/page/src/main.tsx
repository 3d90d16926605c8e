// SPDX-License-Identifier: MIT
import type { BrowserWords, ControlWords } from "mivo";
import { render } from "preact";
import { Alone } from "./Alone";
import { App } from "./App";
import { GeometryProvider } from "./charts/Drawing";
import { loadGeometry } from "./charts/DrawingModule";
import type { Geometry } from "./charts/Geometry";
import { ActionButton } from "./controls/Buttons";
import { type PageName, Source, SourceProvider } from "./engine/Source";
import type { Opening } from "../../worker/app.mjs";
import { NotOpened, WorkerEngine } from "./engine/WorkerEngine";
import { fillWithSample } from "./platform/sample";
import { filesOf, FilesProvider, hand, takeSharedFiles } from "./platform/files";
import { type Holding, holdData, takeData } from "./platform/holdData";
import { notifyWhatIsDue } from "./platform/notifications";
import { startEngineWorker } from "./platform/scripts";
import "./theme/tokens.css";
import "./theme/base.css";
import "./theme/controls.css";
import "./theme/screens.css";

declare const DRAWING_FILE: string;

const root = document.getElementById("app")!;
const again = () => location.reload();

/// What the first frame shows: all of it is there before anything is drawn.
const firstPages: PageName[] = ["words", "browser", "appearance", "screens", "message", "statistics", "fasting", "history", "addWeight", "weights", "fastingChart", "eatingChart", "weightChart", "weightFastingChart"];

/// Whose files the engine has: the user's, or a sample's.
const history = new URLSearchParams(location.search).has("sample") ? "sample" : "own";

async function start(): Promise<void> {
  const engine = new WorkerEngine(startEngineWorker(history));
  engine.onEnded = (sentence) => render(<Alone sentence={sentence} />, root);
  const geometry = loadGeometry(fetch(DRAWING_FILE));
  const [words, browser] = await Promise.all([engine.page("words"), engine.page("browser")]);
  document.documentElement.lang = browser.language;
  document.documentElement.dir = browser.isRightToLeft ? "rtl" : "ltr";
  engine.onEnded = (sentence) => showFault(words, sentence);
  if (!isSecureContext) return render(<Alone sentence={browser.insecure} />, root);
  if (!("locks" in navigator) || !navigator.storage?.getDirectory) return render(<Alone sentence={browser.cannotKeep} />, root);
  const holding = await holdData(history);
  const begin = (held: Holding) => {
    held.whenWanted((letGo) => {
      showElsewhere(browser, again);
      void engine.stop().then(letGo);
    });
    return open(engine, geometry, words, "asItIs");
  };
  if (holding) await begin(holding);
  else showElsewhere(browser, () => void takeData(history).then(begin));
}

async function open(engine: WorkerEngine, loading: Promise<Geometry>, words: ControlWords, how: Opening): Promise<void> {
  try {
    await engine.open(how);
  } catch (error) {
    const tryOpening = (next: Opening) => () => void open(engine, loading, words, next);
    const isDamaged = error instanceof NotOpened && error.isDamaged;
    return showFault(words, (error as Error).message, isDamaged && tryOpening);
  }
  const source = new Source(engine);
  engine.onWritten = (file) => void hand(file);
  const files = filesOf(engine);
  if (history === "sample") await fillWithSample(source, files);
  const [geometry] = await Promise.all([loading, source.load(firstPages)]);
  render(
    <SourceProvider source={source}>
      <GeometryProvider value={geometry}>
        <FilesProvider value={files}>
          <App />
        </FilesProvider>
      </GeometryProvider>
    </SourceProvider>,
    root,
  );
  const tellWatched = () => engine.setWatched(document.visibilityState === "visible");
  document.addEventListener("visibilitychange", tellWatched);
  tellWatched();
  files.bring(await takeSharedFiles());
  notifyWhatIsDue(source);
}

/// Why there is nothing to see; and for a damaged history the ways to go on.
function showFault(words: ControlWords, sentence: string, opening: false | ((how: Opening) => () => void) = false): void {
  render(
    <Alone title={words.cannotOpen} sentence={sentence}>
      {opening && (
        <>
          <p class="text-label secondary">{words.damagedIsKept}</p>
          <ActionButton text={words.restoreNewest} onClick={opening("fromNewestBackup")} />
          <ActionButton text={words.beginAnew} kind="secondary" onClick={opening("anew")} />
        </>
      )}
      <ActionButton text={words.tryAgain} kind={opening ? "plain" : "primary"} onClick={again} />
    </Alone>,
    root,
  );
}

function showElsewhere(browser: BrowserWords, useHere: () => void): void {
  render(
    <Alone sentence={browser.elsewhere}>
      <ActionButton text={browser.useHere} onClick={useHere} />
    </Alone>,
    root,
  );
}

void start();
