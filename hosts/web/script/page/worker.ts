// The core in a worker of its own, so that the page never waits for it.

import { canSuspend, loadCore, type Surroundings } from "../core.ts";
import { textOf, type Field } from "../fields.ts";
import { good } from "../errors.ts";
import { Locales } from "../locale.ts";
import { exchange } from "./http.ts";
import type { FromWorker, Start, ToWorker } from "./messages.ts";
import { answerAboutRecords } from "./records.ts";
import { answerAboutTurns, answerAboutTurnsEnd } from "./turns.ts";
import { putGivenFile } from "./given_files.ts";
import { answerAboutFiles, answerAboutOpenFiles, makeFolders } from "./opfs.ts";

const lines: string[] = [];
let linesEnded = false;
let said = "";
let wake: (() => void) | undefined;
let takeModule: (module: WebAssembly.Module) => void;
const compiled = new Promise<WebAssembly.Module>((resolve) => (takeModule = resolve));

function tell(message: FromWorker): void {
  postMessage(message);
}

/// A line's answer and the changes behind it arrive together, so that nobody acts on what was.
function tellSaid(): void {
  if (said !== "") tell({ said });
  said = "";
}

/// No field at the end of lines.
async function nextLine(): Promise<readonly Field[]> {
  while (lines.length === 0 && !linesEnded) await new Promise<void>((resolve) => (wake = resolve));
  return lines.splice(0, 1);
}

/// How long the core works before the messages that wait are let in.
const breath = 16;
let lastBreath = 0;

async function lineWaits(): Promise<readonly Field[]> {
  if (performance.now() - lastBreath > breath) {
    await new Promise((resolve) => setTimeout(resolve));
    lastBreath = performance.now();
  }
  return [lines.length > 0 || linesEnded ? "1" : "0"];
}

function unknown(question: string): readonly Field[] {
  throw new Error(`the core has asked for ${question}`);
}

function browser(start: Start): Surroundings {
  const locales = new Locales();
  locales.prepare(start.locale);
  const settings = new Map(start.settings);
  const nameOf = (fields: Uint8Array[]) => fields.slice(1, 4).map(textOf).join("/");
  return {
    async ask(question, fields) {
      tellSaid();
      if (question === "line") return nextLine();
      if (question === "lineWaits") return lineWaits();
      if (question === "http") return exchange(fields);
      return answerAboutFiles(question, fields) ?? answerAboutRecords(question, fields) ??
        answerAboutTurns(question, fields) ?? unknown(question);
    },
    askNow(question, fields) {
      switch (question) {
        case "say":
          said += textOf(fields[0]);
          return [];
        case "complain":
          tell({ complaint: textOf(fields[0]) });
          return [];
        case "arguments":
          return start.arguments;
        case "recordFolder":
          return [start.records];
        case "numberFolder":
          return [start.numbers];
        case "localeName":
          return [navigator.language.replace("-", "_")];
        case "absolutePath":
          return [textOf(fields[0])];
        case "setting":
          return [settings.get(nameOf(fields)) ?? textOf(fields[4])];
        case "keep":
          settings.set(nameOf(fields), textOf(fields[4]));
          tell({ kept: [nameOf(fields), textOf(fields[4])] });
          return [good];
        default:
          return locales.answer(question, fields) ?? answerAboutOpenFiles(question, fields) ??
            answerAboutTurnsEnd(question, fields) ?? unknown(question);
      }
    },
  };
}

async function fetched(address: string): Promise<Uint8Array> {
  const response = await fetch(address);
  if (!response.ok) throw new Error(`${address}: ${response.status}`);
  return new Uint8Array(await response.arrayBuffer());
}

async function prepareFiles(start: Start): Promise<void> {
  const folders = makeFolders(start.folder);
  await Promise.all(start.files.map(async ([name, address]) => {
    const [bytes] = await Promise.all([fetched(address), folders]);
    await putGivenFile(name, bytes, start);
  }));
  await folders;
}

async function run(start: Start): Promise<void> {
  try {
    // Browsers give their files to no other page, and no locks.
    if (!isSecureContext) throw new Error("Редактор работает только на странице, открытой по https:// (или на своём компьютере, localhost). Обратитесь к администратору сайта.");
    if (!canSuspend()) throw new Error("Этот браузер не умеет приостанавливать WebAssembly. Нужен Chrome, Edge 137 или Firefox 153 и новее.");
    const prepared = prepareFiles(start);
    const surroundings = browser(start);
    const [module] = await Promise.all([compiled, prepared]);
    const core = await loadCore(module, surroundings);
    const status = await core.run();
    tellSaid();
    tell({ ended: status });
  } catch (error) {
    tell({ failed: error instanceof Error ? error.message : String(error) });
  }
}

addEventListener("message", (event: MessageEvent<ToWorker>) => {
  if ("start" in event.data) {
    void run(event.data.start);
  } else if ("module" in event.data) {
    takeModule(event.data.module);
  } else {
    if ("line" in event.data) lines.push(event.data.line);
    else linesEnded = true;
    wake?.();
  }
});
