// The locale as the browser's Intl knows it.

import { bytesOf, textOf, type Field } from "./fields.ts";
import { rankBytes } from "./core.ts";

type Parts = { type: string; value: string }[];

/// Languages whose results are known to be right. A browser may say that it supports another, and
/// write its dates in no language at all.
const languages = new Set(["ru", "en", "pl", "de"]);
const home = "ru-RU";
/// No interface of Intl tells a country's currency.
const currencies: Record<string, string> = {
  AT: "EUR", BY: "BYN", CH: "CHF", DE: "EUR", GB: "GBP", KZ: "KZT", PL: "PLN", RU: "RUB", UA: "UAH", US: "USD",
};
const calendar = { calendar: "gregory", numberingSystem: "latn", timeZone: "UTC" } as const;
const noBreakSpace = "\u00a0";
const narrowNoBreakSpace = "\u202f";
const replacement = "\ufffd";

function plainSpaces(text: string): string {
  return text.replaceAll(noBreakSpace, " ").replaceAll(narrowNoBreakSpace, " ");
}

function withoutMarks(text: string): string {
  return text.replace(/[\u200e\u200f]/g, "");
}

/// Any day of the calendar; Date.UTC takes the years 0 to 99 for others.
function dayOf(text: string): Date {
  const [year, month, day] = text.split("-").map(Number);
  const date = new Date(Date.UTC(2000, month! - 1, day!));
  date.setUTCFullYear(year!);
  return date;
}

function partOf(parts: Parts, type: string): string {
  return parts.find((part) => part.type === type)?.value ?? "";
}

/// A tag of "ru_RU.UTF-8"; the home one for what names no locale.
function tagOf(name: string): string {
  const tag = name.replace(/[.@].*$/, "").replace("_", "-");
  try {
    return languages.has(new Intl.Locale(tag).language) ? tag : home;
  } catch {
    return home;
  }
}

/// The short date's pieces, each figure with the number of digits that it has at least.
function shortDatePieces(tag: string) {
  const format = new Intl.DateTimeFormat(tag, { dateStyle: "short", ...calendar });
  const pieces = (format.formatToParts(dayOf("2003-2-1")) as Parts)
    .filter((part) => part.type !== "era")
    .map((part) => ({ type: part.type, text: withoutMarks(plainSpaces(part.value)) }));
  while (pieces.at(-1)?.type === "literal") pieces.pop();
  return pieces;
}

function once<Value extends object>(make: () => Value): () => Value {
  let made: Value | undefined;
  return () => (made ??= make());
}

class Locale {
  private readonly tag: string;
  private readonly pieces: { type: string; text: string }[];
  // What a browser takes long to make is made when it is first needed.
  private readonly longDates: () => Intl.DateTimeFormat;
  private readonly shortTimes: () => Intl.DateTimeFormat;
  private readonly collator: () => Intl.Collator;
  private readonly characters: () => string[];
  private readonly codes: () => Map<string, number>;
  readonly facts = once(() => this.findFacts());

  constructor(name: string) {
    const tag = tagOf(name);
    this.tag = tag;
    this.pieces = shortDatePieces(tag);
    this.longDates = once(() => new Intl.DateTimeFormat(tag, { dateStyle: "long", ...calendar }));
    this.shortTimes = once(() => new Intl.DateTimeFormat(tag, { timeStyle: "short", ...calendar }));
    this.collator = once(() => new Intl.Collator(tag, { sensitivity: "accent", ignorePunctuation: false }));
    this.characters = once(() => {
      const isCyrillic = new Intl.Locale(tag).maximize().script === "Cyrl";
      const decoder = new TextDecoder(isCyrillic ? "windows-1251" : "windows-1252");
      return Array.from({ length: 256 }, (_, byte) => decoder.decode(Uint8Array.of(byte)));
    });
    this.codes = once(() => new Map(this.characters().map((character, byte) => [character, byte])));
  }

  private findFacts(): string[] {
    const number = new Intl.NumberFormat(this.tag, { numberingSystem: "latn" });
    const group = partOf(number.formatToParts(12345678.9), "group");
    const blanks = [noBreakSpace, " "];
    const groups = group === narrowNoBreakSpace ? [group, ...blanks] : blanks.includes(group) ? blanks : [group];
    const dots = this.pieces.some((piece) => piece.type === "literal" && piece.text.includes("."));
    return [partOf(number.formatToParts(1.5), "decimal"), this.currencySign(), this.dateOrder(), dots ? "1" : "0", ...groups];
  }

  /// "d", "m" and "y" in the order in which a short date has them.
  dateOrder(): string {
    return this.pieces.filter((piece) => piece.type !== "literal").map((piece) => piece.type.charAt(0)).join("");
  }

  shortDate(date: string): string {
    const [year, month, day] = date.split("-");
    const figures: Record<string, string> = { year: year!.padStart(4, "0"), month: month!, day: day! };
    return this.pieces
      .map((piece) => figures[piece.type]?.padStart(piece.text.length > 1 ? 2 : 1, "0") ?? piece.text)
      .join("");
  }

  longDate(date: string): string {
    return plainSpaces(this.longDates().format(dayOf(date)));
  }

  shortTime(time: string): string {
    const [hour, minute, second] = time.split(":").map(Number);
    return plainSpaces(this.shortTimes().format(new Date(Date.UTC(2003, 1, 1, hour, minute, second))));
  }

  upper(text: string): string {
    return this.inCase(text, (given) => given.toLocaleUpperCase(this.tag));
  }

  lower(text: string): string {
    return this.inCase(text, (given) => given.toLocaleLowerCase(this.tag));
  }

  /// Texts in order are compared once each; those that nearly are, soon put in order.
  ranks(texts: string[]): Int32Array {
    const { compare } = this.collator();
    const ranksIn = (order: number[]): Int32Array | undefined => {
      const ranks = new Int32Array(order.length);
      let rank = 0;
      for (let place = 1; place < order.length; ++place) {
        const step = compare(texts[order[place - 1]!]!, texts[order[place]!]!);
        if (step > 0) return undefined;
        if (step < 0) ++rank;
        ranks[order[place]!] = rank;
      }
      return ranks;
    };
    const order = texts.map((_, index) => index);
    return ranksIn(order) ?? ranksIn(order.sort((left, right) => compare(texts[left]!, texts[right]!)))!;
  }

  compare(left: string, right: string): string {
    return String(Math.sign(this.collator().compare(left, right)));
  }

  toSingleByte(text: string): Uint8Array {
    const unknown = "?".charCodeAt(0);
    const codes = this.codes();
    return Uint8Array.from(text, (character) =>
      character === replacement ? unknown : (codes.get(character) ?? unknown));
  }

  fromSingleByte(bytes: Uint8Array): string {
    const characters = this.characters();
    return Array.from(bytes, (byte) => characters[byte]).join("");
  }

  private currencySign(): string {
    const currency = currencies[new Intl.Locale(this.tag).maximize().region ?? ""];
    if (currency === undefined) return "¤";
    const format = new Intl.NumberFormat(this.tag, { style: "currency", currency, numberingSystem: "latn" });
    return partOf(format.formatToParts(1), "currency");
  }

  /// A character that has no single counterpart in the other case stays.
  private inCase(text: string, change: (text: string) => string): string {
    const size = (given: string) => [...given].length;
    const whole = change(text);
    if (size(whole) === size(text)) return whole;
    return Array.from(text, (character) => {
      const other = change(character);
      return size(other) === 1 ? other : character;
    }).join("");
  }
}

/// The locale of "ru_RU".
export function localeNamed(name: string) {
  return new Locale(name);
}

/// Answers the core's questions about locales; nothing for other questions. The first field names
/// the locale.
export class Locales {
  private readonly known = new Map<string, Locale>();

  answer(question: string, fields: Uint8Array[]): Field[] | undefined {
    const named = () => this.named(textOf(fields[0]));
    const argument = () => textOf(fields[1]);
    switch (question) {
      case "facts":
        return named().facts();
      case "shortDate":
        return [named().shortDate(argument())];
      case "longDate":
        return [named().longDate(argument())];
      case "shortTime":
        return [named().shortTime(argument())];
      case "upper":
        return [named().upper(argument())];
      case "lower":
        return [named().lower(argument())];
      case "ranks":
        // Each text has its end: a field for each would take longer than the ranks.
        return [rankBytes(named().ranks(argument().split("\0").slice(0, -1)))];
      case "compare":
        return [named().compare(argument(), textOf(fields[2]))];
      case "toSingleByte":
        return [named().toSingleByte(argument())];
      case "fromSingleByte":
        return [named().fromSingleByte(bytesOf(fields[1]))];
      default:
        return undefined;
    }
  }

  /// What the core asks first takes a browser a while.
  prepare(name: string): void {
    this.named(name).facts();
  }

  private named(name: string): Locale {
    let locale = this.known.get(name);
    if (locale === undefined) {
      locale = new Locale(name);
      this.known.set(name, locale);
    }
    return locale;
  }
}
