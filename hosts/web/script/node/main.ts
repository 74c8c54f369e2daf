// awizo-headless under Node: the core's surroundings are those of the computer.
// usage: node awizo-headless.mjs FILE.wasm [option]...

import fs from "node:fs";
import path from "node:path";

import { loadCore, type Surroundings } from "../core.ts";
import { bytesOf, textOf, type Field } from "../fields.ts";
import { Locales } from "../locale.ts";
import { answerAboutFiles } from "./files.ts";
import { exchange } from "./http.ts";
import { LineReader } from "./lines.ts";
import { answerAboutSettings } from "./settings.ts";

const standardOutput = 1;
const standardError = 2;
const failure = 1;

const [wasm, ...given] = process.argv.slice(2);
const lines = new LineReader(process.stdin);
const locales = new Locales();

function environmentLocale(): string {
  return process.env["LC_ALL"] || process.env["LC_NUMERIC"] || process.env["LANG"] || "";
}

/// What nobody reads any more is lost in silence.
function write(file: number, bytes: Uint8Array): void {
  try {
    for (let at = 0; at < bytes.length; ) at += writeSome(file, bytes, at);
  } catch (error) {
    if ((error as NodeJS.ErrnoException).code !== "EPIPE") throw error;
  }
}

/// A pipe that is full takes nothing for a while.
function writeSome(file: number, bytes: Uint8Array, at: number): number {
  try {
    return fs.writeSync(file, bytes, at);
  } catch (error) {
    if ((error as NodeJS.ErrnoException).code !== "EAGAIN") throw error;
    Atomics.wait(new Int32Array(new SharedArrayBuffer(4)), 0, 0, 1);
    return 0;
  }
}

const computer: Surroundings = {
  async ask(question, fields) {
    if (question === "line") {
      const line = await lines.next();
      return line === undefined ? [] : [line];
    }
    // Whether input waits isn't seen.
    if (question === "lineWaits") return ["0"];
    if (question === "http") return exchange(fields);
    return answerAboutFiles(question, fields) ?? unknown(question);
  },
  askNow(question, fields) {
    switch (question) {
      case "say":
        write(standardOutput, bytesOf(fields[0]));
        return [];
      case "complain":
        write(standardError, bytesOf(fields[0]));
        return [];
      // What is recorded there the options say; a firm's numbers are its users' alone.
      case "recordFolder":
      case "numberFolder":
        return [];
      case "arguments":
        return given;
      case "localeName":
        return [environmentLocale()];
      case "absolutePath":
        return [path.resolve(textOf(fields[0]))];
      default:
        return (
          locales.answer(question, fields) ??
          answerAboutSettings(question, fields) ??
          answerAboutFiles(question, fields) ??
          unknown(question)
        );
    }
  },
};

function unknown(question: string): readonly Field[] {
  throw new Error(`the core has asked for ${question}`);
}

try {
  const core = await loadCore(await WebAssembly.compile(fs.readFileSync(wasm!)), computer);
  process.exitCode = await core.run();
} catch (error) {
  console.error(error);
  process.exitCode = failure;
}
// Input that still comes must not keep the program.
process.exit();
