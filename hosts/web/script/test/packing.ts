// What lies where: lines are packed from the pane by a key and by dragging, whole ones are filtered out,
// the pane leads to lines and goes.
// usage: node packing.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import type { Locator } from "playwright-core";

import { User, withPage } from "./user.ts";

/// Firefox's own dragging can't be driven: its events are made.
async function drag(from: Locator, to: Locator): Promise<void> {
  if (process.env["AWIZO_BROWSER"] !== "firefox") return from.dragTo(to);
  const carried = await from.evaluateHandle((row) => {
    const dataTransfer = new DataTransfer();
    row.dispatchEvent(new DragEvent("dragstart", { bubbles: true, dataTransfer }));
    return dataTransfer;
  });
  await to.evaluate((row, dataTransfer) => {
    row.dispatchEvent(new DragEvent("drop", { bubbles: true, cancelable: true, dataTransfer }));
  }, carried);
}

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  await user.addPackage("Паллета", "395200010000000011");
  await user.addPackage("Короб", "395200010000000028");
  const pane = user.editor.locator("section.packing");
  const lines = pane.getByRole("listbox");
  const packages = pane.getByRole("tree");
  const summary = (words: string) => pane.locator("output").filter({ hasText: words }).waitFor();
  const line = (row: number) => lines.locator(`[data-at="${row - 1}"]`);

  await user.control("grdPozycje").press("F6");
  await summary("упаковано 0 из 25 строк");
  await lines.and(page.locator(":focus")).waitFor();

  // By keys: the first two lines into the second package.
  await lines.press("Home");
  await lines.press("Shift+ArrowDown");
  await packages.getByRole("treeitem").nth(1).click();
  await packages.press("Insert");
  await summary("упаковано 2 из 25 строк");
  await packages.getByRole("treeitem").nth(3).waitFor();
  assert.equal(await packages.getByRole("treeitem").nth(2).getAttribute("aria-level"), "2");
  await user.picture("packing");

  // By dragging: the fourth line into the first package.
  await drag(line(4), packages.getByRole("treeitem").first());
  await summary("упаковано 3 из 25 строк");
  assert.equal(await packages.getByRole("treeitem").nth(1).getAttribute("aria-level"), "2");
  await packages.press("ArrowLeft");

  await pane.getByRole("checkbox").check();
  await line(1).getByText("3", { exact: true }).waitFor();
  assert.equal(await line(1).getAttribute("aria-setsize"), "22");
  await pane.getByRole("checkbox").uncheck();

  // One step back for what was one act.
  await lines.press("Control+z");
  await summary("упаковано 2 из 25 строк");

  // Of a line that is whole nothing is packed, which a box tells; the pane keeps the keys. A mark that
  // has gone leaves nobody's line marked.
  const focused = (list: Locator) => list.and(page.locator(":focus")).waitFor();
  const marked = lines.locator("[aria-selected=true]");
  await lines.press("Home");
  await packages.getByRole("treeitem").nth(1).click();
  await lines.press("Insert");
  await user.editor.getByRole("alertdialog").filter({ hasText: "Раскладывать нечего." }).waitFor();
  await page.keyboard.press("Enter");
  await focused(lines);
  await page.keyboard.press("End");
  await lines.locator('[data-at="24"][aria-selected=true]').waitFor();
  await page.keyboard.press("Home");
  await pane.getByRole("checkbox").check();
  await line(1).getByText("3", { exact: true }).waitFor();
  assert.equal(await marked.count(), 0);
  assert.ok(await pane.getByRole("button", { name: "Положить остаток сюда" }).isDisabled());
  await pane.getByRole("checkbox").uncheck();

  // The tree stays at its line when another comes above it.
  const current = packages.locator("[aria-selected=true]");
  await packages.press("ArrowRight");
  await packages.getByRole("treeitem").nth(3).click();
  const kept = await current.innerText();
  await lines.locator('[data-at="4"]').click();
  await drag(line(5), packages.getByRole("treeitem").first());
  await summary("упаковано 3 из 25 строк");
  await packages.getByRole("treeitem").nth(4).waitFor();
  assert.equal(await current.innerText(), kept);
  await lines.press("Control+z");
  await summary("упаковано 2 из 25 строк");

  // A scanner works in the pane too: what is scanned is gone to, and while that is switched on it goes into
  // the package where the user stands.
  const table = user.control("grdPozycje");
  const summaryNow = await pane.locator("output").first().innerText();
  await packages.getByRole("treeitem").first().click();
  await packages.focus();
  await page.keyboard.type("9520001010385");
  await page.keyboard.press("Enter");
  await table.locator('[data-row="10"][aria-selected="true"]').waitFor();
  await focused(packages);
  await user.choose("scannerPacks");
  await user.editor.locator("[data-task=scannerPacks][aria-checked=true]").waitFor({ state: "attached" });
  await packages.focus();
  await page.keyboard.type("9520001010385");
  await page.keyboard.press("Enter");
  await user.editor.locator("output.line").filter({ hasText: /^Паллета ← Строка 10 .*упаковано 1 из/ }).waitFor();
  await focused(packages);
  await packages.press("Control+z");
  await user.choose("scannerPacks");
  await summary(summaryNow);

  // A click brings the keys from the pane to the table.
  await lines.focus();
  await user.control("grdPozycje").locator('[data-row="6"] [data-col="2"]').click();
  await focused(user.control("grdPozycje"));
  await page.keyboard.press("Insert");
  await user.dialog("DlgDodaj").waitFor();
  await page.keyboard.press("Escape");
  await user.dialog("DlgDodaj").waitFor({ state: "detached" });

  // Enter leads to the line; the pane goes where it has the focus.
  await lines.press("End");
  await lines.press("Enter");
  await user.control("grdPozycje").locator('[data-row="25"] .cell.current, [data-row="25"].current').first().waitFor();
  await user.control("grdPozycje").press("F6");
  await lines.and(page.locator(":focus")).waitFor();
  await lines.press("F6");
  await pane.waitFor({ state: "hidden" });
  await user.control("grdPozycje").and(page.locator(":focus, :focus-within")).waitFor();
});
console.log("The pane shows what lies where.");
