// The statistics in JavaScript: the WebAssembly module mivo.wasm, with texts by Intl and time zones by the browser.
//
//     const engine = await loadEngine(await (await fetch('mivo.wasm')).arrayBuffer());
//     engine.statistics(snapshot, { now: new Date(), timeZone: 'Europe/Berlin', locale: 'de-DE' }).stats.totalHours;
//
// SPDX-License-Identifier: MIT

import { Exchange } from '../exchange/exchange.mjs';
import { firstWeekdayOf, intlTexts, textImports, weightUnitOf } from '../locale/texts.mjs';
import { transitionsOf } from '../locale/zones.mjs';

/** Where a module is compiled from: its bytes, or a WebAssembly.Module. */
export async function loadEngine(source) {
  return new Engine(source instanceof WebAssembly.Module ? source : await WebAssembly.compile(source));
}

class Engine {
  #module;
  #exchange; // with an instance that speaks the language of #texts; it keeps sentences
  #texts;

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
    const text = typeof snapshot === 'string' ? snapshot : JSON.stringify(snapshot);
    try {
      return this.#exchange.call('report', text, JSON.stringify(asked));
    } catch (error) {
      if (error instanceof WebAssembly.RuntimeError) this.#exchange = undefined; // its memory is not to be trusted
      throw error;
    }
  }

  #speak(locale, catalogue) {
    if (this.#exchange && this.#texts.locale === locale && this.#texts.catalogue === catalogue) return;
    this.#texts = intlTexts(locale, catalogue);
    this.#exchange = new Exchange(this.#module, (exchange) => textImports(exchange, () => this.#texts));
  }
}
