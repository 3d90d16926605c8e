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

function find(name) {
  const offsetAt = offsets(name);
  const end = Date.UTC(lastYear + 1, 0, 1) / 1000;
  let before = Date.UTC(firstYear, 0, 1) / 1000;
  let offset = offsetAt(before);
  const found = { name, firstOffset: offset, transitions: [], lastYear };
  while (before < end) {
    const after = Math.min(before + step, end);
    const next = offsetAt(after);
    if (next !== offset) {
      const at = firstWith(offsetAt, before, after, offset);
      found.transitions.push([at, next]);
      offset = next;
    }
    before = after;
  }
  if (found.transitions.at(-1)?.[0] >= end) found.transitions.pop();
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
