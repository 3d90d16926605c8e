// SPDX-License-Identifier: MIT
import { render } from "preact";
import { Alone } from "./Alone";
import { App } from "./App";
import { draftGeometry } from "./charts/DraftGeometry";
import { GeometryProvider } from "./charts/Drawing";
import { loadGeometry } from "./charts/DrawingModule";
import type { Geometry } from "./charts/Geometry";
import { ActionButton } from "./controls/Buttons";
import type { BrowserWords, ControlWords } from "./engine/Records";
import { type PageName, Source, SourceProvider } from "./engine/Source";
import { WorkerEngine } from "./engine/WorkerEngine";
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

async function start(): Promise<void> {
  const engine = new WorkerEngine(startEngineWorker());
  const geometry = DRAWING_FILE === "" ? Promise.resolve(draftGeometry) : loadGeometry(fetch(DRAWING_FILE));
  const [words, browser] = await Promise.all([engine.page("words"), engine.page("browser")]);
  if (!words || !browser) throw new Error("no words");
  document.documentElement.lang = browser.language;
  document.documentElement.dir = browser.isRightToLeft ? "rtl" : "ltr";
  if (!isSecureContext) return render(<Alone sentence={browser.insecure} />, root);
  if (!("locks" in navigator) || !navigator.storage?.getDirectory) return render(<Alone sentence={browser.cannotKeep} />, root);
  const holding = await holdData();
  if (!holding) return showElsewhere(browser, () => void takeData().then((taken) => open(engine, geometry, taken, words, browser)));
  await open(engine, geometry, holding, words, browser);
}

async function open(engine: WorkerEngine, loading: Promise<Geometry>, holding: Holding, words: ControlWords, browser: BrowserWords): Promise<void> {
  holding.whenWanted((letGo) => {
    engine.stop();
    letGo();
    showElsewhere(browser, again);
  });
  try {
    await engine.open();
  } catch (error) {
    return render(
      <Alone title={words.cannotOpen} sentence={(error as Error).message}>
        <ActionButton text={words.tryAgain} onClick={again} />
      </Alone>,
      root,
    );
  }
  const source = new Source(engine);
  engine.onWritten = (file) => void hand(file);
  const [geometry] = await Promise.all([loading, source.load(firstPages)]);
  const files = filesOf(engine);
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
  files.bring(await takeSharedFiles());
  notifyWhatIsDue(source);
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
