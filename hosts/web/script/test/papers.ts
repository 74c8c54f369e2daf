// Labels and the packing list: shown, turned over, printed as the browser prints them, read back from
// the PDF by programs of others; the list as a table.
// usage: node papers.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";

import type { Page } from "playwright-core";

import { handedOut, User, withPage } from "./user.ts";

const millimetresInInch = 25.4;
const pointsInInch = 72;
const dotsPerInch = 600;
const accuracy = 0.1;
const inChromium = process.env["AWIZO_BROWSER"] !== "firefox";

interface Printed {
  title: string;
  body: string;
  rules: string;
}

/// Browsers round a page's size, not what is drawn on it.
const aPoint = millimetresInInch / pointsInInch;

function near(measured: number, wanted: number, what: string, within = accuracy): void {
  assert.ok(Math.abs(measured - wanted) <= within, `${what}: ${measured} instead of ${wanted}`);
}

/// In place of the browser's own dialog: notes what it would print, and is left.
async function notePrinting(page: Page): Promise<void> {
  await page.addInitScript(() => {
    window.print = () => {
      const rules = document.adoptedStyleSheets.flatMap((sheet) => [...sheet.cssRules].map((rule) => rule.cssText));
      Object.assign(window.top!, { printed: { title: document.title, body: document.body.innerHTML, rules: rules.join("\n") } });
      window.dispatchEvent(new Event("afterprint"));
    };
  });
}

async function printed(page: Page, act: () => Promise<void>): Promise<Printed> {
  await page.evaluate(() => Object.assign(window, { printed: undefined }));
  await act();
  await page.waitForFunction(() => (window as unknown as { printed?: Printed }).printed !== undefined);
  return page.evaluate(() => (window as unknown as { printed: Printed }).printed);
}

/// As the browser prints that, in a file.
async function pdfOf(page: Page, { body, rules }: Printed, file: string): Promise<void> {
  const paper = await page.context().newPage();
  await paper.setContent(`<!doctype html><html><head><style>${rules}</style></head><body>${body}</body></html>`);
  await paper.pdf({ path: file, preferCSSPageSize: true });
  await paper.close();
}

/// A page for each sheet, each on paper of its size, with these texts.
function expectPages({ body, rules }: Printed, sizes: [string, string][], texts: string[]): void {
  const found = [...body.matchAll(/class="sheet (paper-[\w-]+)"/g)].map(([, name]) => name);
  assert.deepEqual(found, sizes.map(([width, height]) => `paper-${width}-${height}`));
  for (const [width, height] of sizes) {
    assert.match(rules, new RegExp(`@page paper-${width}-${height} *{[^}]*size: ${width} ${height};[^}]*margin: 0px;`));
    assert.match(rules, new RegExp(`\\.paper-${width}-${height} *{[^}]*page: paper-${width}-${height};`));
  }
  for (const text of texts) assert.ok(body.includes(`>${text}</text>`), text);
}

function run(program: string, ...given: string[]): string {
  return execFileSync(program, given, { encoding: "utf8", stdio: ["ignore", "pipe", "ignore"] });
}

interface Size { width: number; height: number }

function pageSizes(pdf: string): Size[] {
  const sizes = run("pdfinfo", "-l", "99", pdf).matchAll(/Page +\d+ size: +([\d.]+) x ([\d.]+) pts/g);
  const inMillimetres = (points: string | undefined) => (Number(points) / pointsInInch) * millimetresInInch;
  return [...sizes].map(([, width, height]) => ({ width: inMillimetres(width), height: inMillimetres(height) }));
}

/// The page drawn in dots; its file.
function drawn(pdf: string, page: number): string {
  const stem = `${pdf}-${page}`;
  run("pdftoppm", "-gray", "-singlefile", "-r", String(dotsPerInch), "-f", String(page), "-l", String(page), pdf, stem);
  return `${stem}.pgm`;
}

/// How large the lowest symbol of a package's number is, in millimetres.
function lowestSymbol(picture: string): Size {
  const bytes = fs.readFileSync(picture);
  const [head, , columns, rows] = /^P5\s((\d+)\s(\d+)\s\d+\s)/.exec(bytes.subarray(0, 40).toString("latin1"))!;
  const [width, height] = [Number(columns), Number(rows)];
  const isDark = (x: number, y: number) => bytes[head.length + y * width + x]! < 128;
  const edges = (y: number) => {
    const at: number[] = [];
    for (let x = 1; x < width; ++x) if (isDark(x, y) !== isDark(x - 1, y)) at.push(x);
    return at;
  };
  const edgesOfNumber = 86;
  const someRows = 50;
  const isSymbol = (y: number) => edges(y).length === edgesOfNumber;
  let bottom = height - 1;
  while (bottom > someRows && !(isSymbol(bottom) && isSymbol(bottom - someRows))) --bottom;
  let top = bottom;
  while (top > 0 && isSymbol(top - 1)) --top;
  const across = edges(bottom);
  const dot = millimetresInInch / dotsPerInch;
  return { width: (across.at(-1)! - across[0]!) * dot, height: (bottom + 1 - top) * dot };
}

const folder = fs.mkdtempSync(path.join(os.tmpdir(), "papers-"));
process.on("exit", () => fs.rmSync(folder, { recursive: true, force: true }));
const numbers = ["395200010000000011", "395200010000000028"];

await withPage(async (page) => {
  const user = new User(page);
  await notePrinting(page);
  await user.open();
  await user.addPackage("Короб 1", numbers[0]!);
  await user.addPackage("Короб 2", numbers[1]!);
  await user.packFirstLine();
  const sheet = user.dialog("PapersDialog").locator(".sheet svg");
  const choose = async (list: string, row: string) => {
    await user.control(list).locator(".opener").click();
    await user.control(list).getByRole("option", { name: row, exact: true }).click();
  };
  const close = async () => {
    await user.control("PapersDialog.btnClose").click();
    await user.dialog("PapersDialog").waitFor({ state: "detached" });
  };

  await user.control("grdOpakowania").press("Control+l");
  await sheet.getByText(numbers[0]!, { exact: true }).waitFor();
  assert.equal(await user.control("PapersDialog.btnPdf").count(), 1);
  assert.ok(await user.control("PapersDialog.btnPdf").isHidden());
  await choose("PapersDialog.cboSize", "A6");
  await choose("PapersDialog.cboCopies", "1");
  await user.picture("labels");
  await user.control("PapersDialog.btnNext").click();
  await sheet.getByText(numbers[1]!, { exact: true }).waitFor();
  await user.control("PapersDialog.lblSheet").filter({ hasText: "лист 2 из 2" }).waitFor();

  const labels = await printed(page, () => user.control("PapersDialog.btnPrint").click());
  assert.match(labels.title, /^Этикетки/);
  expectPages(labels, [["105mm", "148mm"], ["105mm", "148mm"]], numbers);
  // Whether they were printed only the user knows.
  assert.match(await user.answer("notPrinted"), /^Этикетки напечатаны\?/);
  await choose("PapersDialog.cboPackages", "Ещё без этикетки");
  await sheet.getByText(numbers[0]!, { exact: true }).waitFor();
  await user.control("PapersDialog.btnPrint").click();
  await user.editor.getByRole("alertdialog").waitFor();
  await user.picture("printed");
  await user.answer("printed");
  await choose("PapersDialog.cboPackages", "Все");
  await choose("PapersDialog.cboPackages", "Ещё без этикетки");
  await user.control("PapersDialog.lblNotes").filter({ hasText: "Таких упаковок нет." }).waitFor();
  if (inChromium) {
    const pdf = path.join(folder, "labels.pdf");
    await pdfOf(page, labels, pdf);
    const sizes = pageSizes(pdf);
    assert.equal(sizes.length, 2);
    for (const [at, number] of numbers.entries()) {
      near(sizes[at]!.width, 105, "a label's width", aPoint);
      near(sizes[at]!.height, 148, "a label's height", aPoint);
      const picture = drawn(pdf, at + 1);
      assert.match(run("zbarimg", "-q", "--nodbus", "--raw", picture), new RegExp(`^00${number}$`, "m"));
      assert.match(run("ZXingReader", "-noscale", picture), new RegExp(`Text: +"00${number}"`));
      const symbol = lowestSymbol(picture);
      near(symbol.width, 156 * 0.508, "the symbol's width");
      near(symbol.height, 32, "the symbol's height");
    }
    assert.match(run("pdftotext", "-layout", pdf, "-"), new RegExp(`SSCC\\s+${numbers[0]}`));
  }
  await close();

  await user.control("grdOpakowania").press("Control+p");
  await sheet.getByText("Упаковочный лист", { exact: false }).first().waitFor();
  await user.picture("packing-list");
  const list = await printed(page, () => user.control("PapersDialog.btnPrint").click());
  const [, sheets] = / из (\d+)$/.exec(await user.control("PapersDialog.lblSheet").innerText())!;
  expectPages(list, Array<[string, string]>(Number(sheets)).fill(["210mm", "297mm"]), ["Без упаковки"]);
  if (inChromium) {
    const pdf = path.join(folder, "list.pdf");
    await pdfOf(page, list, pdf);
    const sizes = pageSizes(pdf);
    assert.equal(sizes.length, Number(sheets));
    near(sizes[0]!.width, 210, "a sheet's width", aPoint);
    near(sizes[0]!.height, 297, "a sheet's height", aPoint);
    const text = run("pdftotext", "-layout", pdf, "-").replaceAll("\u00a0", " ");
    for (const number of numbers) assert.ok(text.includes(number), text);
    assert.match(text, /Без упаковки/);
  }
  await close();
  assert.equal(await user.editor.getByRole("alertdialog").count(), 0, "of a list nothing is asked");

  const name = await user.field("txtNrAwiza").inputValue();
  const table = await handedOut(page, `Упаковочный_лист${name === "" ? "" : `_${name}`}.csv`, () =>
    user.choose("showPackingCsv"), (text) => text.endsWith("\n"));
  assert.ok(table.startsWith("\ufeff"));
  assert.ok(table.includes(numbers[0]!));

  // Of another file than a document the user hears by its own name.
  const chooser = page.waitForEvent("filechooser");
  await user.choose("showPapersOfFile");
  await (await chooser).setFiles({ name: "счёт.xml", mimeType: "application/xml", buffer: Buffer.from("<a/>") });
  assert.match(await user.answer("OK"), /^счёт\.xml: /);
});
console.log("The papers of the page are read back.");
