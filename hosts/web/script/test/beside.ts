// Two elements on one page: what is done in one is nothing to the other; the page's styles stay outside,
// the element's own within, and its custom properties are the page's to set.
// usage: node beside.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import { User, withPage } from "./user.ts";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  const own = await page.evaluate(() => {
    const button = Object.assign(document.createElement("button"), { id: "own", textContent: "page" });
    document.body.append(button);
    return getComputedStyle(button).borderRadius;
  });
  const look = () => user.editor.first().evaluate((element) => {
    const root = element.shadowRoot!;
    const style = (selector: string) => getComputedStyle(root.querySelector(selector)!);
    return [style("button").display, style("button").borderRadius, style("fieldset").backgroundColor, style("legend").fontFamily];
  });
  const before = await look();
  await page.evaluate(() => {
    const sheet = new CSSStyleSheet();
    sheet.replaceSync("button { display: none; border-radius: 0; } fieldset { background: red; } #own { display: block; border-radius: revert-layer; }");
    document.adoptedStyleSheets = [sheet];
  });
  assert.deepEqual(await look(), before);
  assert.notEqual(before[1], own);
  assert.equal(await page.locator("#own").evaluate((button) => getComputedStyle(button).backgroundColor), await page.evaluate(() => {
    const plain = document.createElement("iframe");
    document.body.append(plain);
    const button = plain.contentDocument!.body.appendChild(plain.contentDocument!.createElement("button"));
    const colour = plain.contentWindow!.getComputedStyle(button).backgroundColor;
    plain.remove();
    return colour;
  }));
  await user.editor.evaluate((element: HTMLElement) => {
    element.style.setProperty("--awizo-paper", "rgb(1, 2, 3)");
    element.style.setProperty("--awizo-font", "monospace");
  });
  assert.deepEqual(await look(), [before[0], before[1], "rgb(1, 2, 3)", "monospace"]);

  await user.editor.evaluate((element) => {
    const other = element.cloneNode() as HTMLElement;
    other.id = "other";
    other.setAttribute("folder", "/OTHER");
    element.after(other);
  });
  const first = user.editor.first().locator('[data-name="txtNrAwiza"] input');
  const second = page.locator("#other").locator('[data-name="txtNrAwiza"] input');
  await page.locator("#other").locator('[data-name="grdPozycje"]').waitFor();
  await first.fill("ТН-1");
  await second.fill("ТН-2");
  await page.keyboard.press("Tab");
  const held = (which: string) => page.locator(which).evaluate(async (element) =>
    ((await (element as unknown as { say(line: object): Promise<{ text: string }> }).say({ get: "txtNrAwiza" })).text));
  assert.equal(await held("awizo-wysylki:not(#other)"), "ТН-1");
  assert.equal(await held("#other"), "ТН-2");
  // Taken out, the one ends; the other works on.
  await page.evaluate(() => document.getElementById("other")!.remove());
  await first.fill("ТН-3");
  assert.equal(await held("awizo-wysylki"), "ТН-3");
});
console.log("Two editors stood on one page.");
