// A user of the page in a real browser: clicks and keys alone.

import assert from "node:assert/strict";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";

import { chromium, firefox, type Browser, type Locator, type Page } from "playwright-core";

const pictures = process.env["AWIZO_PICTURES"] || undefined;
const inFirefox = process.env["AWIZO_BROWSER"] === "firefox";
const patience = 20_000;

/// Of the page; the service stands beside it.
export const address = process.argv.at(-1) ?? "";
/// By this name Chromium reaches the page as one of another computer.
export const otherComputer = "editor.example";
const service = new URL(address).origin;

export interface Request {
  exchange: string;
  cookie: string;
  body: string;
}

export async function requests(): Promise<Request[]> {
  return (await (await fetch(`${service}/_requests`)).json()) as Request[];
}

/// From now on the exchange fails: "upload=garbage".
export async function makeFaulty(fault: string): Promise<void> {
  assert.ok((await fetch(`${service}/_faults`, { method: "POST", body: fault })).ok);
}

export class User {
  readonly editor: Locator;
  private readonly page: Page;

  constructor(page: Page) {
    this.page = page;
    this.editor = page.locator("awizo-wysylki");
    page.setDefaultTimeout(patience);
  }

  control(name: string): Locator {
    return this.editor.locator(`[data-name="${name}"]`);
  }

  field(name: string): Locator {
    return this.control(name).locator("input");
  }

  /// A command of the menus.
  command(task: string): Locator {
    return this.editor.locator(`[role^=menuitem][data-task="${task}"]`);
  }

  /// Chooses it, as by mouse.
  async choose(task: string): Promise<void> {
    await this.editor.locator(".menu").filter({ has: this.page.locator(`[data-task="${task}"]`) }).locator("> button").click();
    await this.command(task).click();
  }

  dialog(name: string): Locator {
    return this.editor.locator(`dialog[aria-labelledby="title-${name}"]`);
  }

  async open(): Promise<void> {
    await this.page.goto(address);
    await this.isReady();
  }

  /// A new editor in the other's place, with a folder of its own. Its clock stands, and the order waits
  /// again.
  async startAt(now: string): Promise<void> {
    await fetch(`${service}/_reset`, { method: "POST" });
    await this.editor.evaluate(async (element, time) => {
      const other = element.cloneNode() as HTMLElement;
      other.setAttribute("now", time);
      other.setAttribute("folder", "/OTHER");
      element.replaceWith(other);
    }, now);
    await this.isReady();
  }

  async isReady(): Promise<void> {
    await this.control("grdPozycje").getByRole("row").nth(1).waitFor();
  }

  /// Whether to go on with work that was left behind.
  question(): Locator {
    return this.editor.getByRole("alertdialog").filter({ has: this.editor.page().locator("[data-answer=goOn]") });
  }

  /// Answers the box that is open, and returns its text.
  async answer(answer: string): Promise<string> {
    const box = this.editor.getByRole("alertdialog");
    await box.waitFor();
    const text = await box.locator("#box-text").innerText();
    await box.locator(`[data-answer=${answer}]`).click();
    return text;
  }

  async addPackage(description: string, serial: string): Promise<void> {
    await this.control("btnDodajOpak").click();
    await this.field("DlgSzczegoly.txtPackageDesc").fill(description);
    await this.field("DlgSzczegoly.cboxILNLokalizacji").fill("9520002001016");
    await this.field("DlgSzczegoly.txtSerialNumberN").fill(serial);
    await this.control("DlgSzczegoly.btnDodaj").click();
    await this.dialog("DlgSzczegoly").waitFor({ state: "detached" });
  }

  async goToFirstLine(): Promise<void> {
    const lines = this.control("grdPozycje");
    await lines.press("Control+Home");
    await lines.locator('.current[data-row="1"] [data-col="1"]').click();
    // The rows are drawn anew by the click.
    await lines.locator('[data-row="1"] .current[data-col="1"]').waitFor();
  }

  async packFirstLine(): Promise<void> {
    await this.goToFirstLine();
    await this.control("btnEdytuj").click();
    await this.control("DlgDodaj.Command1").click();
    await this.control("DlgdodajPule.cboxPackages").locator(".opener").click();
    await this.control("DlgdodajPule.cboxPackages").getByRole("option").first().click();
    await this.picture("quantity");
    await this.control("DlgdodajPule.btnDodaj").click();
    await this.dialog("DlgdodajPule").waitFor({ state: "detached" });
    await this.picture("line-dialog");
    await this.control("DlgDodaj.btnDodaj").click();
    await this.dialog("DlgDodaj").waitFor({ state: "detached" });
  }

  /// Sends the document, answering all that is asked on the way, and returns what the service got.
  async send(): Promise<Request> {
    await this.control("btnPrzeslij").click();
    const seen: string[] = [];
    while (!seen.at(-1)?.includes("отправлен")) {
      const box = this.editor.getByRole("alertdialog");
      await box.waitFor();
      seen.push(await this.answer((await box.locator("[data-answer=Yes]").count()) > 0 ? "Yes" : "OK"));
      assert.ok(seen.length < 10, seen.join(" | "));
    }
    return (await requests()).at(-1)!;
  }

  /// The colours that the browser can be told to prefer.
  schemes(): ("light" | "dark")[] {
    return inFirefox ? ["light"] : ["light", "dark"];
  }

  async useScheme(colorScheme: "light" | "dark"): Promise<void> {
    if (!inFirefox) await this.page.emulateMedia({ colorScheme });
  }

  async picture(name: string): Promise<void> {
    if (pictures === undefined) return;
    for (const width of [360, 800, 1920]) {
      await this.page.setViewportSize({ width, height: 900 });
      for (const scheme of this.schemes().toReversed()) {
        await this.useScheme(scheme);
        await this.page.screenshot({ path: `${pictures}/${name}-${width}-${scheme}.png`, fullPage: true });
      }
    }
    await this.page.setViewportSize({ width: 1280, height: 900 });
  }
}

const downloads = fs.mkdtempSync(path.join(os.tmpdir(), "downloads-"));
process.on("exit", () => fs.rmSync(downloads, { recursive: true, force: true }));

function launch(): Promise<Browser> {
  return inFirefox
    // The channel is the one that a Firefox as it comes can be driven by.
    ? firefox.launch({
        channel: "moz-firefox", executablePath: "/usr/bin/firefox-esr", downloadsPath: downloads,
        // The list of downloads would take the keys.
        firefoxUserPrefs: { "browser.download.alwaysOpenPanel": false },
      })
    : chromium.launch({ executablePath: "/usr/bin/chromium", args: ["--no-sandbox", `--host-resolver-rules=MAP ${otherComputer} 127.0.0.1`] });
}

/// The text of the document or table that the act makes the page hand out under this name.
export async function handedOut(
  page: Page, name: string, act: () => Promise<void>, isWhole = (text: string) => text.trimEnd().endsWith("</Document-DespatchAdvice>"),
): Promise<string> {
  if (!inFirefox) {
    const downloading = page.waitForEvent("download");
    await act();
    const download = await downloading;
    assert.equal(download.suggestedFilename(), name);
    return fs.readFileSync(await download.path(), "utf8");
  }
  // Firefox's downloads aren't told of; they come to the folder, and get their names at the end.
  const watching = new AbortController();
  const signal = AbortSignal.any([watching.signal, AbortSignal.timeout(patience)]);
  const changes = fs.promises.watch(downloads, { recursive: true, signal })[Symbol.asyncIterator]();
  // Nothing is watched before the first change is asked for.
  let change = changes.next();
  await act();
  for (; !(await change).done; change = changes.next()) {
    const file = path.join(downloads, name);
    const text = fs.existsSync(file) ? fs.readFileSync(file, "utf8") : "";
    if (!isWhole(text)) continue;
    // The watch would keep the test from its end.
    watching.abort();
    await changes.return?.();
    return text;
  }
  throw new Error("Nothing was handed out.");
}

/// Does the work in a browser of its own, whose page may complain of nothing.
export async function withPage(work: (page: Page) => Promise<void>): Promise<void> {
  const browser = await launch();
  const complaints: string[] = [];
  try {
    const context = await browser.newContext({ locale: "ru-RU", viewport: { width: 1280, height: 900 } });
    const page = await context.newPage();
    page.on("pageerror", (error) => complaints.push(error.message));
    page.on("console", (message) => message.type() === "error" && complaints.push(message.text()));
    await fetch(`${service}/_reset`, { method: "POST" });
    await work(page);
    assert.deepEqual(complaints, []);
  } finally {
    await browser.close();
  }
}
