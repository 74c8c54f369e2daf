// The element's talk with its core: lines out, closing lines and events in.

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

export class CoreClient {
  private readonly worker: Worker;
  private readonly waiting = new Map<number, (closing: Closing) => void>();
  private lastId = 0;
  private unfinished = "";

  constructor(workerAddress: URL, start: Start, private readonly listener: Listener) {
    this.worker = new Worker(workerAddress, { type: "module" });
    this.worker.addEventListener("message", (event: MessageEvent<FromWorker>) => this.take(event.data));
    this.worker.addEventListener("error", (event) => {
      listener.ended(event.message || "Файл worker.mjs не загрузился или не запустился.");
    });
    this.worker.postMessage({ start });
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
