// The words in which a language writes dates of the Gregorian calendar, by Intl; ReadDateWords.h is the other half.
//
// SPDX-License-Identifier: MIT

export function dateWords(locale) {
  const small = (text) => text.toLowerCase();
  const parts = (options, date) =>
    new Intl.DateTimeFormat(locale, { calendar: 'gregory', timeZone: 'UTC', ...options }).formatToParts(date);
  const part = (type, options, date) => parts(options, date).find((each) => each.type === type)?.value;
  const forms = (texts) => [...new Set(texts.filter((text) => text).map(small))];
  const relative = new Intl.RelativeTimeFormat(locale, { numeric: 'auto' });
  const order = parts({ year: 'numeric', month: 'numeric', day: 'numeric' }, 0).map(({ type }) => type);

  // Alone and inside a date, where some languages inflect it.
  const months = Array.from({ length: 12 }, (_, month) =>
    forms(
      ['long', 'short'].flatMap((width) =>
        [{ month: width }, { month: width, day: 'numeric' }].map((fields) => part('month', fields, Date.UTC(2021, month, 1))),
      ),
    ),
  );
  const weekdays = Array.from({ length: 7 }, (_, day) =>
    forms(['long', 'short'].map((weekday) => part('weekday', { weekday }, Date.UTC(2021, 7, 1 + day)))), // from a Sunday
  );
  const halves = [9, 21].map((hour) =>
    forms([part('dayPeriod', { hour: 'numeric', hour12: true }, Date.UTC(2021, 0, 1, hour))]),
  );
  return {
    months,
    weekdays,
    halves,
    today: forms([relative.format(0, 'day')]),
    yesterday: forms([relative.format(-1, 'day')]),
    now: forms([relative.format(0, 'second')]),
    isDayFirst: order.indexOf('day') < order.indexOf('month'),
  };
}
