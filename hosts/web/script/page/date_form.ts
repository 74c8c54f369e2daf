// Dates as the locale writes them, and as people type them.

import { localeNamed } from "../locale.ts";

export interface DateForm {
  write(iso: string): string;
  /// The date that the text says; nothing for no date, and for one that isn't whole.
  read(text: string): string | undefined;
  /// The same of a date whose year may have two figures: 2000 to 2029 and 1930 to 1999.
  readShort(text: string): string | undefined;
}

/// A field's text while one types is the page's own; the core takes whole dates.
const lastShortYear = 29;

function wholeYear(year: string): string {
  return year.length === 2 ? `${Number(year) > lastShortYear ? "19" : "20"}${year}` : year;
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
  const read = (text: string, yearOf: (figures: string) => string) => {
    const figures = text.match(/\d+/g) ?? [];
    if (figures.length !== parts.length) return undefined;
    const [day, month, shownYear] = parts.map((part) => figures[order.indexOf(part)] ?? "");
    const year = yearOf(shownYear!);
    if (year.length !== 4 || !isDay(Number(year), Number(month), Number(day))) return undefined;
    return `${year}-${month!.padStart(2, "0")}-${day!.padStart(2, "0")}`;
  };
  return {
    write: (iso) => (iso === "" ? "" : locale.shortDate(iso)),
    read: (text) => read(text, (year) => year),
    readShort: (text) => read(text, wholeYear),
  };
}

/// "9:05", "0905" and "09.05" are all five past nine.
export function readTime(text: string): string | undefined {
  const [, hour, minute] = /^\s*(\d{1,2})\D?(\d{2})\s*$/.exec(text) ?? [];
  if (hour === undefined || Number(hour) > 23 || Number(minute) > 59) return undefined;
  return `${hour.padStart(2, "0")}:${minute}`;
}
