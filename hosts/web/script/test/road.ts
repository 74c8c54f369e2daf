// The road of a document in a real browser: the order comes in, a line goes into a package, the
// document is sent. A user's clicks and keys alone do it.
// usage: node road.mjs ADDRESS_OF_THE_PAGE
// The environment's AWIZO_PICTURES names a folder for pictures at three widths.

import assert from "node:assert/strict";

import { chromium, type Locator, type Page } from "playwright-core";

const address = process.argv.at(-1) ?? "";
const pictures = process.env["AWIZO_PICTURES"] || undefined;
const browserFile = "/usr/bin/chromium";
const service = new URL(address).origin;
const patience = 60_000;

interface Request {
  exchange: string;
  cookie: string;
  body: string;
}

async function requests(): Promise<Request[]> {
  return (await (await fetch(`${service}/_requests`)).json()) as Request[];
}

class User {
  private readonly page: Page;
  private readonly editor: Locator;

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

  dialog(name: string): Locator {
    return this.editor.locator(`dialog[aria-labelledby="title-${name}"]`);
  }

  async open(): Promise<void> {
    await this.page.goto(address);
    await this.control("grdPozycje").getByRole("row").nth(1).waitFor();
  }

  /// Answers the box that is open, and returns its text.
  async answer(answer: string): Promise<string> {
    const box = this.editor.getByRole("alertdialog");
    await box.waitFor();
    const text = await box.locator("p").innerText();
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

  async packFirstLine(): Promise<void> {
    await this.control("grdPozycje").press("Home");
    await this.control("grdPozycje").evaluate((table) => (table.scrollTop = 0));
    await this.control("grdPozycje").locator('[data-row="1"] [data-col="1"]').click();
    await this.control("btnEdytuj").click();
    await this.control("DlgDodaj.Command1").click();
    await this.control("DlgdodajPule.cboxPackages").locator(".opener").click();
    await this.control("DlgdodajPule.cboxPackages").getByRole("option").first().click();
    await this.control("DlgdodajPule.btnDodaj").click();
    await this.dialog("DlgdodajPule").waitFor({ state: "detached" });
    await this.picture("line-dialog");
    await this.control("DlgDodaj.btnDodaj").click();
    await this.dialog("DlgDodaj").waitFor({ state: "detached" });
  }

  async picture(name: string): Promise<void> {
    if (pictures === undefined) return;
    for (const width of [360, 800, 1920]) {
      await this.page.setViewportSize({ width, height: 900 });
      await this.page.screenshot({ path: `${pictures}/${name}-${width}.png`, fullPage: true });
    }
    await this.page.setViewportSize({ width: 1280, height: 900 });
  }
}

const browser = await chromium.launch({ executablePath: browserFile, args: ["--no-sandbox"] });
const complaints: string[] = [];
try {
  const page = await (await browser.newContext({ locale: "ru-RU", viewport: { width: 1280, height: 900 } })).newPage();
  page.on("pageerror", (error) => complaints.push(error.message));
  page.on("console", (message) => message.type() === "error" && complaints.push(message.text()));
  await fetch(`${service}/_reset`, { method: "POST" });
  const user = new User(page);

  await user.open();
  assert.deepEqual((await requests()).map((request) => request.exchange),
    ["partner-info", "catalogue", "places", "order"]);
  assert.equal(await user.field("txtNrZam").inputValue(), "ЗК-2026/1147");
  assert.equal(await user.control("grdPozycje").getAttribute("aria-rowcount"), "26");
  await user.picture("main");

  await user.field("txtNrAwiza").fill("ТН/1");
  await user.addPackage("Паллета 1", "035200010000000016");
  assert.equal(await user.control("grdOpakowania").getAttribute("aria-rowcount"), "2");
  await user.packFirstLine();

  await user.control("btnPrzeslij").click();
  const seen: string[] = [];
  while (!seen.at(-1)?.includes("отправлен")) {
    const question = page.getByRole("alertdialog").locator("[data-answer=Yes]");
    await page.getByRole("alertdialog").waitFor();
    seen.push(await user.answer((await question.count()) > 0 ? "Yes" : "OK"));
    assert.ok(seen.length < 10, seen.join(" | "));
  }
  const sent = (await requests()).at(-1)!;
  assert.equal(sent.exchange, "upload");
  assert.equal(sent.cookie, "vird-demo=1");
  assert.ok(sent.body.includes("ТН/1") && sent.body.includes("035200010000000016"), sent.body.slice(0, 500));
  assert.deepEqual(complaints, []);
  console.log("The document was packed and sent in the page.");
} finally {
  await browser.close();
}
