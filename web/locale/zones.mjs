// The changes of a time zone's clocks, as the browser knows them.
//
// SPDX-License-Identifier: MIT

const firstYear = 1840; // no zone had a law before
// The last Ramadan by which clocks are known to change, Gaza's and Casablanca's, is before 2090; 40 years more have each
// kind of year, by which the rule goes on.
const lastYear = 2130;
const step = 4 * 86400; // two changes are never nearer to each other

const kept = new Map();

/** { name, firstOffset, transitions: [[seconds since 1970, offset in seconds east of UTC], ...], lastYear } */
export function transitionsOf(name) {
  if (!kept.has(name)) kept.set(name, find(name));
  return kept.get(name);
}

const begin = Date.UTC(firstYear, 0, 1) / 1000;
const end = Date.UTC(lastYear + 1, 0, 1) / 1000;

function find(name) {
  return { name, lastYear, ...(typeof Temporal === 'undefined' ? byHalving(name) : byTemporal(name)) };
}

function byTemporal(name) {
  const offsetOf = (time) => time.offsetNanoseconds / 1e9;
  const first = Temporal.Instant.fromEpochMilliseconds(begin * 1000).toZonedDateTimeISO(name);
  const transitions = [];
  for (let time = first; (time = time.getTimeZoneTransition('next')) && time.epochMilliseconds / 1000 < end; )
    transitions.push([time.epochMilliseconds / 1000, offsetOf(time)]);
  return { firstOffset: offsetOf(first), transitions };
}

// Without Temporal: a hundred milliseconds, and as exact.
function byHalving(name) {
  const offsetAt = offsets(name);
  let before = begin;
  let offset = offsetAt(before);
  const found = { firstOffset: offset, transitions: [] };
  while (before < end) {
    const after = Math.min(before + step, end);
    const next = offsetAt(after);
    if (next !== offset) {
      const at = firstWith(offsetAt, before, after, offset);
      if (at < end) found.transitions.push([at, next]);
      offset = next;
    }
    before = after;
  }
  return found;
}

// The first second at which the offset is another one, by halving.
function firstWith(offsetAt, before, after, offset) {
  while (after - before > 1) {
    const middle = Math.floor((before + after) / 2);
    if (offsetAt(middle) === offset) before = middle;
    else after = middle;
  }
  return after;
}

// What the clocks show, less what they would show in UTC.
function offsets(timeZone) {
  const format = new Intl.DateTimeFormat('en-US', {
    calendar: 'gregory', timeZone, hourCycle: 'h23', year: 'numeric', month: 'numeric', day: 'numeric',
    hour: 'numeric', minute: 'numeric', second: 'numeric',
  });
  const numbers = /^(\d+)\/(\d+)\/(\d+), (\d+):(\d+):(\d+)$/;
  return (second) => {
    const [, month, day, year, hours, minutes, seconds] = numbers.exec(format.format(second * 1000));
    return Date.UTC(year, month - 1, day, hours, minutes, seconds) / 1000 - second;
  };
}
