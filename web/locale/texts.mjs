// Numbers, dates and sentences of a locale, by Intl and by the catalogues of this project.
//
// SPDX-License-Identifier: MIT

const units = ['hour', 'minute', 'kilogram', 'pound', 'stone']; // in the order of adapters::Unit
const narrowUnits = 2; // those of time

/** What the module's imports are made of; `catalogue` as catalogues.mjs writes it, English without one. */
export function intlTexts(locale, catalogue) {
  const kept = new Map();
  const once = (key, make) => kept.get(key) ?? kept.set(key, make()).get(key);
  // A minus sign in front of what rounds to nothing would be a riddle.
  const shown = (number, digits) => (Number(Number(number).toFixed(digits)) === 0 ? 0 : number);

  const numbers = (digits, unit) =>
    once(`${digits} ${unit}`, () => {
      const style = unit === undefined ? {} : {
        style: 'unit', unit: units[unit], unitDisplay: unit < narrowUnits ? 'narrow' : 'short',
      };
      return new Intl.NumberFormat(locale, { ...style, minimumFractionDigits: digits, maximumFractionDigits: digits });
    });
  const dates = (skeleton) =>
    once(skeleton, () => {
      const fields = fieldsOf(skeleton);
      return fields && new Intl.DateTimeFormat(locale, { calendar: 'gregory', timeZone: 'UTC', ...fields });
    });
  const list = new Intl.ListFormat(locale, { type: 'unit', style: 'narrow' });
  const found = (key) => (catalogue && Object.hasOwn(catalogue.texts, key) ? catalogue.texts[key] : undefined);

  return {
    locale,
    catalogue,
    number: (number, digits) => numbers(digits).format(shown(number, digits)),
    quantity: (number, unit, digits) => numbers(digits, unit).format(shown(number, digits)),
    joined: (first, second) => list.format([first, second]),
    date: (wall, skeleton) => dates(skeleton)?.format(wall),
    interval: (first, last) => dates('yMMMd').formatRange(first, last),
    text: (key, context) => (context ? found(`${context}\u0004${key}`) : undefined) ?? found(key) ?? key,
    plural: (one, many, count) => found(one)?.[catalogue.form(Math.abs(count))] ?? (Math.abs(count) === 1 ? one : many),
  };
}

/** The imports of ImportedTexts.h; `texts` gives those of the present language. */
export function textImports(exchange, texts) {
  const read = (address, size) => exchange.read(address, size);
  const give = (into, text) => exchange.give(into, text);
  return {
    wholeNumber: (into, number) => void give(into, texts().number(number, 0)),
    number: (into, number, digits) => void give(into, texts().number(number, digits)),
    quantity: (into, number, unit, digits) => void give(into, texts().quantity(number, unit, digits)),
    joined: (into, first, firstSize, second, secondSize) =>
      void give(into, texts().joined(read(first, firstSize), read(second, secondSize))),
    date: (into, wall, skeleton, size) => give(into, texts().date(wall, read(skeleton, size))),
    interval: (into, first, last) => give(into, texts().interval(first, last)),
    text: (into, key, keySize, context, contextSize) =>
      void give(into, texts().text(read(key, keySize), read(context, contextSize))),
    plural: (into, one, oneSize, many, manySize, count) =>
      void give(into, texts().plural(read(one, oneSize), read(many, manySize), count)),
  };
}

// The fields that a skeleton names, as Intl asks for them: "EEEdMMMjm". Nothing where it names another.
function fieldsOf(skeleton) {
  const names = ['numeric', '2-digit', 'short', 'long', 'narrow'];
  const fields = {};
  for (const [run] of skeleton.matchAll(/(.)\1*/g)) {
    if (run[0] === 'E') fields.weekday = run.length < 4 ? 'short' : names[run.length - 1];
    else if (run[0] === 'y') fields.year = 'numeric';
    else if (run[0] === 'M') fields.month = names[run.length - 1];
    else if (run[0] === 'd') fields.day = 'numeric';
    else if (run[0] === 'j') fields.hour = 'numeric';
    else if (run[0] === 'm') fields.minute = '2-digit';
    else return undefined;
  }
  return fields;
}

/** 1 = Sunday to 7 = Saturday: what weeks begin with there; Monday where the browser does not know. */
export function firstWeekdayOf(locale) {
  const place = new Intl.Locale(locale).maximize();
  const week = place.getWeekInfo?.() ?? place.weekInfo;
  return ((week?.firstDay ?? 1) % 7) + 1;
}

/** What people weigh themselves in there. */
export function weightUnitOf(locale) {
  return { US: 'lb', GB: 'st' }[new Intl.Locale(locale).maximize().region] ?? 'kg';
}
