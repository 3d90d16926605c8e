// Random histories, and how their reports are asked for: each number gives another one, and always the same.
//
// SPDX-License-Identifier: MIT

import { transitionsOf } from '../../web/locale/zones.mjs';

// Half an hour back and forth, quarters of an hour, rules by Ramadan, a day that never was, two hours at once.
const timeZones = [
  'Australia/Lord_Howe', 'Pacific/Chatham', 'Asia/Gaza', 'Africa/Casablanca', 'Pacific/Apia', 'Asia/Kathmandu', 'Antarctica/Troll',
];
// Later laws are not in every library of today.
const [earliest, latest] = [Date.UTC(2008, 0), Date.UTC(2022, 10)];
const [hour, day] = [3600_000, 86400_000];

export function randomReport(number) {
  const dice = diceOf(number);
  const timeZone = dice.oneOf(timeZones);
  const now = dice.between(0, 1) < 0.6 ? nearChange(dice, timeZone) : dice.between(earliest, latest);
  return { snapshot: historyUntil(now, dice), now: instant(now), timeZone, ...randomOptions(dice) };
}

function randomOptions(dice) {
  return {
    range: dice.oneOf(['week', 'month', 'year']),
    locale: dice.oneOf(['en-US', 'en-GB', 'fr-FR', 'es-ES']),
    firstWeekday: dice.whole(1, 7),
    count: dice.oneOf(['days', 'fasts']),
    ignoreGoal: dice.oneOf([false, true]),
    maxBreakHours: dice.whole(0, 60),
    weightUnit: dice.oneOf(['kg', 'lb', 'st']),
  };
}

// Just before a change of the clocks, or so long after it that it is in a range which is shown.
function nearChange(dice, timeZone) {
  const changes = transitionsOf(timeZone)
    .transitions.map(([second]) => 1000 * second)
    .filter((change) => earliest < change && change < latest);
  return changes.length > 0 ? dice.oneOf(changes) + dice.between(-2 * day, 20 * day) : dice.between(earliest, latest);
}

// Back from now: mostly a fast a day, with pauses, some that overlap, lie within each other or touch, and now and then
// one that runs.
function historyUntil(now, dice) {
  const fasts = [];
  let end = dice.between(0, 1) < 0.3 ? null : now - dice.between(0, 2 * day);
  for (let left = dice.whole(0, 250); left > 0; --left) {
    const start = (end ?? now) - dice.oneOf([hour / 60, 8 * hour, 16 * hour, 24 * hour, 80 * hour]) * dice.between(0.2, 1.3);
    const goalSeconds = dice.oneOf([null, 3600 * dice.whole(1, 72)]);
    fasts.push({ id: dice.id(), start: instant(start), end: end && instant(end), ...(goalSeconds && { goalSeconds }) });
    end = start - dice.oneOf([0, -6 * hour, 8 * hour, 8 * hour, 8 * hour, 20 * hour, 10 * day]) * dice.between(0.5, 1.5);
    end = Math.min(end, now);
  }
  const weights = Array.from({ length: dice.whole(0, 120) }, () => ({
    id: dice.id(),
    date: instant(now - dice.between(0, 1) ** 2 * 500 * day),
    weightInKg: dice.whole(400, 1500) / 10,
  }));
  return JSON.stringify({ version: 1, fasts: fasts.reverse(), weights });
}

const instant = (milliseconds) => new Date(Math.floor(milliseconds / 1000) * 1000).toISOString();

// The well-known "mulberry32": one number of 32 bits is all its state.
function diceOf(seed) {
  let state = seed;
  const roll = () => {
    state = (state + 0x6d2b79f5) | 0;
    let mixed = Math.imul(state ^ (state >>> 15), 1 | state);
    mixed = (mixed + Math.imul(mixed ^ (mixed >>> 7), 61 | mixed)) ^ mixed;
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 2 ** 32;
  };
  const between = (from, to) => from + roll() * (to - from);
  const whole = (from, to) => Math.floor(between(from, to + 1));
  return {
    between,
    whole,
    oneOf: (values) => values[whole(0, values.length - 1)],
    id: () => '8-4-4-4-12'.replace(/\d+/g, (digits) => Array.from({ length: digits }, () => whole(0, 15).toString(16)).join('')),
  };
}
