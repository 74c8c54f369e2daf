// What a clerk waits for in a page in Chromium, at the system's limits.
// usage: node full_size.mjs AWIZO_HEADLESS ADDRESS_OF_THE_PAGE
// The service behind the page has a catalogue of 32,767 products and an order of 1,423 lines. Ends with
// 1 where a figure is over its limit.

import { spawn } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";

import { chromium, type Page } from "playwright-core";

const [program = "", address = ""] = process.argv.slice(2);
const service = new URL(address).origin;
const lines = 1423;
const turns = 5;
const patience = 120_000;

const folder = fs.mkdtempSync(path.join(os.tmpdir(), "full-size-"));
process.on("exit", () => fs.rmSync(folder, { recursive: true, force: true }));
fs.writeFileSync(path.join(folder, "userinfo.xml"), await (await fetch(new URL("userinfo.xml", address))).text());

async function letOrderWait(): Promise<void> {
  await fetch(`${service}/_reset`, { method: "POST" });
}

function seconds(since: number): number {
  return (performance.now() - since) / 1000;
}

interface NativeStart {
  seconds: number;
  megabytes: number;
}

/// awizo-headless from its start to the user's turn, and the most memory that it takes, the line dialog's
/// four lists filled.
async function startNatively(): Promise<NativeStart> {
  await letOrderWait();
  const begun = performance.now();
  const headless = spawn(program, [
    "--page-url", address, "--cookie", "demo", "--offline-path", folder, "--settings", path.join(folder, "settings"),
    "--locale", "ru_RU", "--property", "PartnerName=Demo", "--property", "PartnerILN=9520002000019", "--property",
    "PartnerURL=partner",
  ], { stdio: ["pipe", "pipe", "inherit"] });
  let said = "";
  const output = headless.stdout.setEncoding("utf8")[Symbol.asyncIterator]();
  const tell = async (acts: string, id: number) => {
    headless.stdin.write(`${acts}{"get":"control","id":${id}}\n`);
    while (!new RegExp(`"id": ?${id}\\b`).test(said)) said += String((await output.next()).value);
  };
  await tell('{"do":"show"}\n', 1);
  const taken = seconds(begun);
  await tell('{"do":"click","on":"btnEdytuj"}\n', 2);
  const peak = /VmHWM:\s+(\d+) kB/.exec(fs.readFileSync(`/proc/${headless.pid}/status`, "utf8"))?.[1];
  headless.stdin.end();
  headless.kill();
  if (!said.includes(String(lines)) || !said.includes("DlgDodaj")) throw new Error(`awizo-headless didn't start with the order: ${said.slice(-600)}`);
  return { seconds: taken, megabytes: Number(peak) / 1024 };
}

/// What the worker's core has for its memory is kept where the page's owner can ask for it.
async function keepMemory(page: Page): Promise<void> {
  await page.route("**/worker.mjs", async (route) => {
    const script = await (await route.fetch()).text();
    const keeps = `{ const make = WebAssembly.instantiate;
      WebAssembly.instantiate = async (...given) => {
        const made = await make(...given);
        self.linearMemory = (made.instance ?? made).exports.memory;
        return made;
      }; }\n`;
    await route.fulfill({ body: keeps + script, contentType: "text/javascript" });
  });
}

/// Frames come as soon as they are asked for: what is measured is work, not waiting for a screen.
const settings = {
  executablePath: "/usr/bin/chromium", locale: "ru-RU", viewport: { width: 1280, height: 900 },
  args: ["--no-sandbox", "--disable-gpu-vsync", "--disable-frame-rate-limit"],
};
let lastProfile = 0;

/// Until the browser has made the picture in which the element has what the selector names. The page looks by
/// itself, at each change: Playwright looks again after growing pauses, of half a second at last.
async function picture(page: Page, selector: string): Promise<void> {
  await page.evaluate((wanted) => new Promise<void>((settle) => {
    const root = document.querySelector("awizo-wysylki")!.shadowRoot!;
    const look = () => {
      if (root.querySelector(wanted) === null) return;
      changed.disconnect();
      requestAnimationFrame(() => {
        const channel = new MessageChannel();
        // After the frame is made.
        channel.port1.onmessage = () => settle();
        channel.port2.postMessage(undefined);
      });
    };
    const changed = new MutationObserver(look);
    changed.observe(root, { subtree: true, childList: true });
    look();
  }), selector);
}

/// In a browser that was never used: it has fetched nothing yet, and keeps files as it does for everybody.
async function start(prepare = async (_: Page) => {}): Promise<{ page: Page; seconds: number }> {
  await letOrderWait();
  const context = await chromium.launchPersistentContext(path.join(folder, `profile-${++lastProfile}`), settings);
  const page = context.pages()[0] ?? (await context.newPage());
  page.setDefaultTimeout(patience);
  await prepare(page);
  const begun = performance.now();
  await page.goto(address);
  // It begins with its last line in sight.
  await picture(page, `[data-name="grdPozycje"] [data-row="${lines}"] [data-col="1"]`);
  return { page, seconds: seconds(begun) };
}

function least(values: number[]): number {
  return Math.min(...values);
}

function quantile(values: number[], share: number): number {
  const sorted = [...values].sort((one, other) => one - other);
  return sorted[Math.min(Math.floor(sorted.length * share), sorted.length - 1)]!;
}

/// Milliseconds from each event of the kind to the picture that shows below the control what came of it:
/// all rows within sight with their texts, or what a list proposes.
async function framesOf(page: Page, control: string, event: string, act: (turn: number) => Promise<void>, count: number) {
  await page.evaluate(([name, kind]) => {
    const control = document.querySelector("awizo-wysylki")!.shadowRoot!.querySelector<HTMLElement>(`[data-name="${name}"]`)!;
    const popup = control.querySelector(".popup");
    const kept = window as unknown as { painted: number[]; settled: Promise<void> };
    kept.painted = [];
    const isWhole = (changes: MutationRecord[]) => {
      if (popup !== null) return changes.some((change) => popup.contains(change.target));
      const [top, bottom] = [control.scrollTop, control.scrollTop + control.clientHeight];
      const rows = [...control.querySelectorAll<HTMLElement>(".rows > [data-row]")];
      const seen = rows.filter((row) => row.offsetTop + row.offsetHeight > top && row.offsetTop < bottom);
      return seen.length > 0 && seen.every((row) => row.childElementCount > 0);
    };
    control.addEventListener(kind!, (happened) => {
      kept.settled = new Promise((settle) => {
        const changed = new MutationObserver((changes) => {
          if (!isWhole(changes)) return;
          changed.disconnect();
          requestAnimationFrame(() => {
            const channel = new MessageChannel();
            // After the frame is made.
            channel.port1.onmessage = () => {
              kept.painted.push(performance.now() - happened.timeStamp);
              settle();
            };
            channel.port2.postMessage(undefined);
          });
        });
        changed.observe(control, { subtree: true, childList: true, attributes: true, characterData: true });
      });
    }, { capture: true });
  }, [control, event] as const);
  for (let turn = 0; turn < count; ++turn) {
    await act(turn);
    await page.evaluate(() => (window as unknown as { settled: Promise<void> }).settled);
  }
  return page.evaluate(() => (window as unknown as { painted: number[] }).painted);
}

let isOver = false;

function tell(what: string, value: number, limit: number, unit: string): void {
  const over = value > limit;
  isOver ||= over;
  console.log(`${what}: ${value.toFixed(2)} ${unit}, limit ${limit} ${unit}${over ? "  OVER" : ""}`);
}

let page: Page | undefined;
try {
  const natives: NativeStart[] = [];
  const starts: number[] = [];
  for (let turn = 0; turn < turns; ++turn) {
    natives.push(await startNatively());
    const started = await start();
    starts.push(started.seconds);
    await started.page.context().close();
  }
  page = (await start(keepMemory)).page;
  console.log(`The start: ${least(starts).toFixed(2)} s; of awizo-headless: ${least(natives.map((one) => one.seconds)).toFixed(2)} s`);
  tell("The start, by that of awizo-headless", least(starts) / least(natives.map((one) => one.seconds)), 4, "times");

  const control = (name: string) => page!.locator(`awizo-wysylki [data-name="${name}"]`);
  const memory = async () => (await page!.workers()[0]!.evaluate(
    () => (self as unknown as { linearMemory: WebAssembly.Memory }).linearMemory.buffer.byteLength)) / 2 ** 20;
  console.log(`The core's memory after the start: ${await memory()} MB`);
  const scrolls = await framesOf(page!, "grdPozycje", "scroll", async (turn) => {
    await control("grdPozycje").evaluate((table, top) => (table.scrollTop = top), ((turn * 37) % lines) * 30 + 15);
  }, 200);
  tell("Scrolling the lines, the median", quantile(scrolls, 0.5), 16, "ms");
  tell("Scrolling the lines, 99 of 100", quantile(scrolls, 0.99), 50, "ms");

  await control("grdPozycje").evaluate((table) => (table.scrollTop = 0));
  await control("grdPozycje").locator('[data-row="1"] [data-col="1"]').click();
  const opening = performance.now();
  const opened = picture(page, '[data-name="DlgDodaj.cboxNazwaProd"]');
  await control("btnEdytuj").click();
  await opened;
  tell("The line dialog's first opening", seconds(opening), 0.8, "s");

  const list = control("DlgDodaj.cboxNazwaProd").locator("input");
  await list.click();
  await list.press("Control+A");
  const typed = "кофе молоко";
  const keys = await framesOf(page!, "DlgDodaj.cboxNazwaProd", "input", async (turn) => {
    const place = turn % (2 * typed.length);
    if (place < typed.length) await page!.keyboard.insertText(typed[place]!);
    else await page!.keyboard.press("Backspace");
  }, 200);
  tell("Typing in a list of all products, the median", quantile(keys, 0.5), 16, "ms");
  tell("Typing in a list of all products, 99 of 100", quantile(keys, 0.99), 50, "ms");

  tell("The core's memory", await memory(), Math.max(...natives.map((one) => one.megabytes)), "MB");
} finally {
  await page?.context().close();
}
process.exitCode = isOver ? 1 : 0;
