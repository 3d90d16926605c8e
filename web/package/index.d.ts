// SPDX-License-Identifier: MIT
import type { Report } from "./Report.js";

export type * from "./Report.js";

/** A history, as the app's own backup has it. Instants are RFC 3339 with an offset. */
export interface Snapshot {
  readonly version: 1;
  readonly fasts?: readonly {
    readonly id?: string;
    readonly start: string;
    /** null while it runs */
    readonly end: string | null;
    /** 57600, 16 hours, where it is left out */
    readonly goalSeconds?: number;
    readonly note?: string;
  }[];
  readonly weights?: readonly {
    readonly id?: string;
    readonly date: string;
    readonly weightInKg: number;
  }[];
}

export interface Options {
  /** The present; a Date, or RFC 3339. Now where it is left out. */
  readonly now?: Date | string;
  /** Of the trends and averages; a week where it is left out. */
  readonly range?: "week" | "month" | "year";
  /** "Europe/Berlin"; the browser's where it is left out. */
  readonly timeZone?: string;
  /** "de-DE": of texts and units; the browser's where it is left out. English, German, Spanish and French are spoken. */
  readonly locale?: string;
  /** 1 is Sunday; the locale's where it is left out. */
  readonly firstWeekday?: 1 | 2 | 3 | 4 | 5 | 6 | 7;
  /** What streaks count; days where it is left out. */
  readonly count?: "days" | "fasts";
  /** Whether a fast counts for streaks that missed its goal. */
  readonly ignoreGoal?: boolean;
  /** Whole hours between two fasts of a streak of fasts. */
  readonly maxBreakHours?: number;
  /** Of texts; the locale's where it is left out. */
  readonly weightUnit?: "kg" | "lb" | "st";
}

/**
 * The figures, trends and cards of a history, as `mivo report --format json` gives them.
 *
 *     const { stats } = await statistics(snapshot, { timeZone: "Europe/Berlin", locale: "de-DE" });
 *
 * @param snapshot the app's own backup: JSON text, or what it parses to
 * @throws an Error with one sentence for a snapshot or an option that is wrong
 */
export function statistics(snapshot: Snapshot | string, options?: Options): Promise<Report>;
