// The statistics in JavaScript: the WebAssembly module mivo.wasm, with texts by Intl and time zones by the browser.
//
//     const engine = await loadEngine(await (await fetch('mivo.wasm')).arrayBuffer());
//     engine.statistics(snapshot, { now: new Date(), timeZone: 'Europe/Berlin', locale: 'de-DE' }).stats.totalHours;
//
// SPDX-License-Identifier: MIT

import { intlTexts, firstWeekdayOf, weightUnitOf } from './texts.mjs';
import { transitionsOf } from './zones.mjs';

/** Where a module is compiled from: its bytes, or a WebAssembly.Module. */
export async function loadEngine(source) {
  return new Engine(source instanceof WebAssembly.Module ? source : await WebAssembly.compile(source));
}

class Engine {
  #module;
  #exports; // of an instance that speaks the language of #texts; it keeps sentences
  #texts;
  #encoder = new TextEncoder();
  #decoder = new TextDecoder();

  constructor(module) {
    this.#module = module;
  }

  /**
   * The figures, trends and cards of a history, as `mivo report --format json` gives them.
   *
   * snapshot  the app's own backup: JSON text, or what it parses to
   * options   now (a Date or RFC 3339; the present), range ('week', 'month', 'year'), timeZone and locale (the
   *           browser's), firstWeekday (1 = Sunday; the locale's), count ('days', 'fasts'), ignoreGoal, maxBreakHours,
   *           weightUnit ('kg', 'lb', 'st'; the locale's), catalogue (see catalogues.mjs; English)
   * Throws an Error with one sentence for a snapshot or an option that is wrong.
   */
  statistics(snapshot, options = {}) {
    return JSON.parse(this.report(snapshot, options));
  }

  /** The same as JSON text. */
  report(snapshot, options = {}) {
    const { now = new Date(), timeZone, locale: tag, catalogue, ...rest } = options;
    const { locale, timeZone: systemZone } = new Intl.DateTimeFormat(tag).resolvedOptions();
    const place = tag ?? locale;
    this.#speak(place, catalogue);
    const asked = {
      now: now instanceof Date ? now.toISOString() : now,
      timeZone: transitionsOf(timeZone ?? systemZone),
      firstWeekday: firstWeekdayOf(place),
      weightUnit: weightUnitOf(place),
      ...rest,
    };
    return this.#call('report', typeof snapshot === 'string' ? snapshot : JSON.stringify(snapshot), JSON.stringify(asked));
  }

  #speak(locale, catalogue) {
    if (this.#exports && this.#texts.locale === locale && this.#texts.catalogue === catalogue) return;
    this.#texts = intlTexts(locale, catalogue);
    const imports = { mivo: this.#imports(), ...systemStubs(this.#module) };
    this.#exports = new WebAssembly.Instance(this.#module, imports).exports;
    this.#exports._initialize();
  }

  // Calls a function that takes texts and gives an answer: its address, its size and whether it says what is wrong.
  #call(name, ...texts) {
    const given = texts.map((text) => this.#put(text));
    let answer;
    try {
      answer = this.#exports[name](...given.flat());
    } catch (error) {
      this.#exports = undefined; // whatever it was, its memory is not to be trusted
      throw error;
    }
    for (const [address] of given) this.#exports.release(address);
    const [address, size, isRefused] = new Uint32Array(this.#exports.memory.buffer, answer, 3);
    const text = this.#read(address, size);
    if (isRefused & 0xff) throw new Error(text);
    return text;
  }

  #put(text) {
    const bytes = this.#encoder.encode(text);
    const address = this.#exports.allocate(bytes.length || 1);
    new Uint8Array(this.#exports.memory.buffer, address, bytes.length).set(bytes);
    return [address, bytes.length];
  }

  #read(address, size) {
    return this.#decoder.decode(new Uint8Array(this.#exports.memory.buffer, address, size));
  }

  // Writes a text where an import is to put its answer; nothing where there is none.
  #give(into, text) {
    if (text === undefined) return 0;
    const bytes = this.#encoder.encode(text);
    const address = this.#exports.room(into, bytes.length);
    new Uint8Array(this.#exports.memory.buffer, address, bytes.length).set(bytes);
    return 1;
  }

  #imports() {
    const read = (address, size) => this.#read(address, size);
    const give = (into, text) => this.#give(into, text);
    return {
      wholeNumber: (into, number) => void give(into, this.#texts.number(number, 0)),
      number: (into, number, digits) => void give(into, this.#texts.number(number, digits)),
      quantity: (into, number, unit, digits) => void give(into, this.#texts.quantity(number, unit, digits)),
      joined: (into, first, firstSize, second, secondSize) =>
        void give(into, this.#texts.joined(read(first, firstSize), read(second, secondSize))),
      date: (into, wall, skeleton, size) => give(into, this.#texts.date(wall, read(skeleton, size))),
      interval: (into, first, last) => give(into, this.#texts.interval(first, last)),
      text: (into, key, keySize, context, contextSize) =>
        void give(into, this.#texts.text(read(key, keySize), read(context, contextSize))),
      plural: (into, one, oneSize, many, manySize, count) =>
        void give(into, this.#texts.plural(read(one, oneSize), read(many, manySize), count)),
    };
  }
}

// What a C library asks of a system, and what nothing of the module calls: files, clocks, arguments.
function systemStubs(module) {
  const notImplemented = 52;
  const stubs = {};
  for (const { module: from, name, kind } of WebAssembly.Module.imports(module))
    if (from !== 'mivo' && kind === 'function') (stubs[from] ??= {})[name] = () => notImplemented;
  return stubs;
}
