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
