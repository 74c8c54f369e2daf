// Dates as the locale writes them, and as people type them.

import { localeNamed } from "../locale.ts";

export interface DateForm {
  write(iso: string): string;
  /// The date that the text says; nothing for no date, and for one that isn't whole.
  read(text: string): string | undefined;
}

const parts = ["d", "m", "y"];

/// Whether the calendar has this day.
function isDay(year: number, month: number, day: number): boolean {
  const date = new Date(Date.UTC(2000, month - 1, day));
  date.setUTCFullYear(year);
  return date.getUTCMonth() === month - 1 && date.getUTCDate() === day;
}

export function dateForm(name: string): DateForm {
  const locale = localeNamed(name);
  const order = [...locale.dateOrder()];
  return {
    write: (iso) => (iso === "" ? "" : locale.shortDate(iso)),
    read(text) {
      const figures = text.match(/\d+/g) ?? [];
      if (figures.length !== parts.length) return undefined;
      const [day, month, year] = parts.map((part) => figures[order.indexOf(part)] ?? "");
      if (year!.length !== 4 || !isDay(Number(year), Number(month), Number(day))) return undefined;
      return `${year}-${month!.padStart(2, "0")}-${day!.padStart(2, "0")}`;
    },
  };
}

/// "9:05", "0905" and "09.05" are all five past nine.
export function readTime(text: string): string | undefined {
  const [, hour, minute] = /^\s*(\d{1,2})\D?(\d{2})\s*$/.exec(text) ?? [];
  if (hour === undefined || Number(hour) > 23 || Number(minute) > 59) return undefined;
  return `${hour.padStart(2, "0")}:${minute}`;
}
