// Settings in a file of lines "application/section/key=value", as the native program keeps them.

import fs from "node:fs";
import path from "node:path";

import { bytesOf, textOf, type Field } from "../fields.ts";
import { good } from "../errors.ts";
import { answerAboutFiles } from "./files.ts";

function escaped(text: string): string {
  return text.replace(/[\\=/]/g, "\\$&").replaceAll("\n", "\\n").replaceAll("\r", "\\r");
}

function plain(text: string): string {
  return text.replace(/\\(.)/g, (_, letter: string) => (letter === "n" ? "\n" : letter === "r" ? "\r" : letter));
}

function usersOwn(): string {
  const folder = process.env["XDG_CONFIG_HOME"];
  return (folder?.startsWith("/") ? folder : `${process.env["HOME"] ?? ""}/.config`) + "/awizo/settings";
}

function load(file: string): Map<string, string> {
  const values = new Map<string, string>();
  let text = "";
  try {
    text = fs.readFileSync(file, "utf8");
  } catch {
    return values;
  }
  for (const line of text.split("\n")) {
    const entry = /^((?:[^\\=]|\\.)*)=(.*)$/.exec(line);
    if (entry !== null) values.set(entry[1]!, plain(entry[2]!));
  }
  return values;
}

function write(file: string, values: Map<string, string>): readonly Field[] {
  const lines = [...values].sort(([one], [other]) => (one < other ? -1 : 1));
  const text = lines.map(([name, value]) => `${name}=${escaped(value)}\n`).join("");
  try {
    fs.mkdirSync(path.dirname(file), { recursive: true });
  } catch {
    // Writing says why.
  }
  return answerAboutFiles("replace", [bytesOf(file), bytesOf(text)])!;
}

/// Answers the core's questions about settings; nothing for other questions. The fields: the file,
/// three parts of a name, a value.
export function answerAboutSettings(question: string, fields: Uint8Array[]): readonly Field[] | undefined {
  if (question !== "setting" && question !== "keep") return undefined;
  const [file, ...rest] = fields.map(textOf);
  const values = load(file || usersOwn());
  const name = rest.slice(0, 3).map(escaped).join("/");
  const value = rest[3]!;
  if (question === "setting") return [values.get(name) ?? value];
  values.set(name, value);
  const [result, ...more] = write(file || usersOwn(), values);
  return [result ?? good, ...more];
}
