// The whole app in a worker: the WebAssembly module mivo-app.wasm on the browser's files, network and texts. App.cpp is
// the other half; app.d.mts says what there is.
//
// SPDX-License-Identifier: MIT

import { dateWords } from '../adapters/dateWords.mjs';
import { fetchText } from '../adapters/fetchText.mjs';
import { readOnce, StoredFiles } from '../adapters/storedFiles.mjs';
import { Exchange } from '../exchange/exchange.mjs';
import { firstWeekdayOf, intlTexts, textImports, weightUnitOf } from '../locale/texts.mjs';
import { transitionsOf } from '../locale/zones.mjs';

const openings = ['asItIs', 'fromNewestBackup', 'anew']; // in the order of Opening
const settingsFile = 'app.json';
const presentZone = () => new Intl.DateTimeFormat().resolvedOptions().timeZone;

export async function loadApp({ module, folder, languages, catalogue, events, ...rest }) {
  const app = new App(module, folder, events, rest);
  const settings = (await readOnce(await folder(), settingsFile).catch(() => undefined)) ?? new Uint8Array();
  const locale = localeOf(app.chosenLanguage(settings), languages);
  app.begin(locale, await catalogue(new Intl.Locale(locale).language));
  return app;
}

// A language that was chosen is written as where the user is.
function localeOf(chosen, languages) {
  const own = languages[0] ?? 'en';
  if (chosen === '') return own;
  const wanted = new Intl.Locale(chosen);
  if (wanted.region) return chosen;
  return new Intl.Locale(chosen, { region: new Intl.Locale(own).maximize().region }).toString();
}

class App {
  #exchange;
  #folder;
  #events;
  #readPiece;
  #server;
  #texts;
  #words; // for dates
  #files;
  #offered = new Map();
  #ready = []; // tickets of what waits for its turn
  #changed = new Set();
  #requests = new Map();
  #timers = new Set();
  #tick;
  #zone;

  constructor(module, folder, events, { readPiece = readPieceNow, server = '' }) {
    this.#folder = folder;
    this.#events = events;
    this.#readPiece = readPiece;
    this.#server = server;
    this.#exchange = new Exchange(module, (exchange) => ({
      ...textImports(exchange, () => this.#texts),
      ...this.#fileImports(exchange),
      ...this.#otherImports(exchange),
    }));
  }

  chosenLanguage(settings) {
    return this.#exchange.call('chosenLanguage', settings);
  }

  begin(locale, catalogue) {
    this.#texts = intlTexts(locale, catalogue);
    this.#exchange.call('begin', locale);
  }

  async open(how = 'asItIs') {
    try {
      this.#files ??= await StoredFiles.open(await this.#folder());
    } catch (error) {
      console.error(error);
      return this.#texts.text('Another program keeps {1} locked. Try again in a moment.').replace('{1}', 'mivo.sqlite');
    }
    const locale = this.#texts.locale;
    this.#zone = presentZone();
    const place = {
      timeZone: transitionsOf(this.#zone),
      firstWeekday: firstWeekdayOf(locale),
      weightUnit: weightUnitOf(locale),
      server: this.#server,
    };
    try {
      this.#exchange.call('open', JSON.stringify(place), openings.indexOf(how));
    } catch (error) {
      return error.message;
    }
    this.#settle();
    return null;
  }

  isDamaged() {
    return this.#exchange.exports.isDamaged() !== 0;
  }

  send(action) {
    try {
      this.#exchange.call('send', JSON.stringify(action));
    } finally {
      this.#settle();
    }
  }

  page(name) {
    return JSON.parse(this.#exchange.call('page', name));
  }

  rows(name, first, count) {
    return JSON.parse(this.#exchange.call('rows', name, first, count));
  }

  offer(path, file) {
    this.#offered.set(path, file);
  }

  database() {
    return this.#exchange.callForBytes('database');
  }

  setWatched(isNow) {
    this.#exchange.call('setWatched', isNow ? 1 : 0);
    if (isNow && presentZone() !== this.#zone) return this.lookAround();
    this.#settle();
  }

  /** Another zone may hold now. */
  lookAround() {
    const zone = presentZone();
    const isOther = zone !== this.#zone;
    this.#zone = zone;
    this.#exchange.call('lookAround', isOther ? JSON.stringify(transitionsOf(zone)) : '');
    this.#settle();
  }

  close() {
    clearTimeout(this.#tick);
    for (const timer of this.#timers) clearTimeout(timer);
    for (const request of this.#requests.values()) request.abort();
    this.#files?.close();
  }

  // What was called for is done before the caller goes on: when `send` returns, its change is on disk.
  #settle() {
    while (this.#ready.length > 0) this.#exchange.call('run', this.#ready.shift());
    if (this.#changed.size > 0) {
      const names = [...this.#changed];
      this.#changed.clear();
      this.#events.changed(names);
    }
    this.#files.makeRoom().catch(console.error);
    clearTimeout(this.#tick);
    this.#tick = setTimeout(() => this.#passTime(), Math.ceil(1000 * this.#exchange.exports.untilNextTick()) + 1);
  }

  #passTime() {
    this.#exchange.call('tick');
    if (presentZone() === this.#zone) return this.#settle();
    this.lookAround();
  }

  #fileImports(exchange) {
    const name = (address, size) => exchange.read(address, size);
    const bytes = (address, size) => exchange.bytes(address, size);
    return {
      fileOpen: (address, size, isMade) => this.#files.open(name(address, size), isMade !== 0),
      fileSize: (file) => this.#files.size(file),
      fileRead: (file, at, into, size) => this.#files.read(file, at, bytes(into, size)),
      fileWrite: (file, at, from, size) => this.#files.write(file, at, bytes(from, size)),
      fileTruncate: (file, size) => this.#files.truncate(file, size),
      fileFlush: (file) => this.#files.flush(file),
      fileRemove: (address, size) => this.#files.remove(name(address, size)),
      fileReplace: (address, size, from, count) => this.#files.replace(name(address, size), bytes(from, count)),
      fileNames: (into) => void exchange.give(into, this.#files.names().map((each) => `${each}\n`).join('')),
      chosenSize: (path, size) => this.#offered.get(name(path, size))?.size ?? -1,
      chosenPiece: (into, path, size, at, count) => {
        try {
          return exchange.give(into, this.#readPiece(this.#offered.get(name(path, size)), at, count));
        } catch {
          return 0;
        }
      },
      written: (address, size, type, typeSize, from, count) =>
        this.#events.written(name(address, size), name(type, typeSize), bytes(from, count).slice()),
    };
  }

  #otherImports(exchange) {
    return {
      later: (ticket, milliseconds) => {
        if (milliseconds === 0) return void this.#ready.push(ticket);
        const timer = setTimeout(() => {
          this.#timers.delete(timer);
          this.#ready.push(ticket);
          this.#settle();
        }, milliseconds);
        this.#timers.add(timer);
      },
      fetch: (ticket, url, size) => void this.#fetch(ticket, exchange.read(url, size)),
      abortFetch: (ticket) => this.#requests.get(ticket)?.abort(),
      dateWords: (into) => void exchange.give(into, JSON.stringify((this.#words ??= dateWords(this.#texts.locale)))),
      smallLetters: (into, text, size) => void exchange.give(into, exchange.read(text, size).toLowerCase()),
      changed: (names, size) => {
        for (const name of exchange.read(names, size).trimEnd().split('\n')) this.#changed.add(name);
      },
    };
  }

  async #fetch(ticket, url) {
    const request = new AbortController();
    this.#requests.set(ticket, request);
    const [hasFailed, text] = await fetchText(url, request.signal).then(
      (body) => [0, body],
      (error) => [1, error.message],
    );
    this.#requests.delete(ticket);
    this.#exchange.call('answered', ticket, hasFailed, text);
    this.#settle();
  }
}

function readPieceNow(file, at, count) {
  return new Uint8Array(new FileReaderSync().readAsArrayBuffer(file.slice(at, at + count)));
}
