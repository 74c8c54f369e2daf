// The element's talk with its core: lines out, closing lines and events in.

import { canSuspend } from "../core.ts";
import type { Closing, Event, Output } from "./facts.ts";
import * as words from "#words";
import { replayDiffers, type FromWorker, type Start } from "./messages.ts";

export type Line = Record<string, unknown>;

export interface Listener {
  event(event: Event): void;
  kept(name: string, value: string): void;
  complaint(text: string): void;
  /// The core is no more; with words where that wasn't meant.
  ended(words?: string): void;
}

/// None for an end in order.
function wordsOfEnd(status: number): string | undefined {
  if (status === 0) return undefined;
  if (status === replayDiffers) return words.replayFailed;
  return `Редактор остановился (код ${status}). Начатая работа записана: новый запуск предложит её продолжить.`;
}

let compiling: Promise<WebAssembly.Module> | undefined;

/// All elements of the page share it; after a failure the next one tries again.
function compiledCore(): Promise<WebAssembly.Module> {
  compiling ??= WebAssembly.compileStreaming(fetch(new URL("awizo.wasm", import.meta.url)));
  compiling.catch(() => (compiling = undefined));
  return compiling;
}

/// The first touch of its files takes a browser a while, in which the worker begins. Whether they can be
/// had is the worker's to find out.
function warmFiles(): void {
  void navigator.storage?.getDirectory?.().catch(() => undefined);
}

export class CoreClient {
  private readonly worker: Worker;
  private readonly waiting = new Map<number, (closing: Closing) => void>();
  private lastId = 0;
  private unfinished = "";
  private isOver = false;

  /// `startOf` is asked when the browser has begun with what takes it long.
  constructor(startOf: () => Start, private readonly listener: Listener) {
    this.worker = new Worker(new URL("worker.mjs", import.meta.url), { type: "module" });
    // What the worker says of a browser that can't suspend the core is clearer than why nothing was compiled.
    const module = canSuspend() ? compiledCore() : undefined;
    warmFiles();
    this.worker.addEventListener("message", (event: MessageEvent<FromWorker>) => this.take(event.data));
    this.worker.addEventListener("error", (event) => {
      if (!this.isOver) listener.ended(event.message || "Файл worker.mjs не загрузился или не запустился.");
    });
    this.worker.postMessage({ start: startOf() });
    module?.then(
      (module) => this.worker.postMessage({ module }),
      (error: unknown) => this.isOver || listener.ended(error instanceof Error ? error.message : String(error)),
    );
  }

  /// The closing line, which comes when all that the line began has ended, its dialogs included.
  say(line: Line): Promise<Closing> {
    const id = ++this.lastId;
    return new Promise((resolve) => {
      this.waiting.set(id, resolve);
      this.worker.postMessage({ line: JSON.stringify({ ...line, id }) });
    });
  }

  /// Lets the core end in order; the listener is told when it has.
  finish(): void {
    this.worker.postMessage({ end: true });
  }

  /// Ends it at once. Lines that wait for their end are given up.
  end(): void {
    this.isOver = true;
    this.worker.terminate();
    for (const giveUp of this.waiting.values()) giveUp({ ok: false, error: "The control has ended." });
    this.waiting.clear();
  }

  private take(message: FromWorker): void {
    if ("said" in message) this.takeText(message.said);
    else if ("kept" in message) this.listener.kept(...message.kept);
    else if ("complaint" in message) this.listener.complaint(message.complaint);
    else if ("failed" in message) this.listener.ended(message.failed);
    else this.listener.ended(wordsOfEnd(message.ended));
  }

  private takeText(text: string): void {
    const lines = (this.unfinished + text).split("\n");
    this.unfinished = lines.pop() ?? "";
    for (const line of lines) this.takeOutput(JSON.parse(line) as Output);
  }

  private takeOutput(output: Output): void {
    if ("event" in output) {
      this.listener.event(output);
      return;
    }
    const id = output.id ?? 0;
    this.waiting.get(id)?.(output);
    this.waiting.delete(id);
  }
}
