// Nothing is lost: the page is reloaded in the middle of the work, another tab opened beside it, the
// element taken out and put back; the work goes on and is sent.
// usage: node kept.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import { requests, User, withPage } from "./user.ts";

const offer = /^Продолжить ТН-6 от \d\d:\d\d, упаковано 1 из 25\?/;

async function everythingIsThere(user: User): Promise<void> {
  await user.isReady();
  assert.equal(await user.field("txtNrAwiza").inputValue(), "ТН-6");
  assert.equal(await user.control("grdOpakowania").getAttribute("aria-rowcount"), "2");
  assert.equal(await user.control("grdPozycje").getAttribute("aria-rowcount"), "26");
}

/// The words of the form's buttons.
async function words(user: User): Promise<string[]> {
  return user.editor.locator("main .form button[data-name]").allInnerTexts();
}

/// A scanner leads to the line of its product.
async function scannerLeads(user: User): Promise<void> {
  const lines = user.control("grdPozycje");
  const { keyboard } = lines.page();
  await user.goToFirstLine();
  await keyboard.type(await lines.locator('[data-row="2"] [data-col="1"]').innerText());
  await keyboard.press("Enter");
  await lines.locator('[data-row="2"][aria-selected="true"]').waitFor();
}

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  await user.field("txtNrAwiza").fill("ТН-6");
  await user.addPackage("Паллета 1", "035200010000000016");
  await user.packFirstLine();
  const asked = (await requests()).length;
  const wordsBefore = await words(user);
  assert.ok(wordsBefore.includes("Отправить"), wordsBefore.join(" | "));

  await page.reload();
  await user.question().waitFor();
  assert.deepEqual(await user.question().getByRole("button").allInnerTexts(), ["Продолжить", "Начать заново", "Отложить"]);

  // What is asked about in one tab is no other tab's.
  const otherPage = await page.context().newPage();
  // The browser's files are needed by the worker alone.
  await otherPage.addInitScript("delete StorageManager.prototype.getDirectory;");
  const other = new User(otherPage);
  await other.open();
  assert.equal(await other.question().count(), 0);
  assert.equal(await other.field("txtNrAwiza").inputValue(), "");
  await otherPage.close();
  const askedByOther = (await requests()).length;
  assert.ok(askedByOther > asked);

  assert.match(await user.answer("goOn"), offer);
  await everythingIsThere(user);
  assert.deepEqual(await words(user), wordsBefore);
  await scannerLeads(user);
  assert.match(await user.editor.locator(".strip output").innerText(), /^Продолжена работа/);

  await user.editor.evaluate((element) => {
    const place = element.parentElement!;
    element.remove();
    place.append(element);
  });
  assert.match(await user.answer("goOn"), offer);
  await everythingIsThere(user);
  assert.equal((await requests()).length, askedByOther);

  // Work that stood in an open box goes on there.
  await user.control("btnPrzeslij").click();
  await user.editor.getByRole("alertdialog").waitFor();
  await page.reload();
  assert.match(await user.answer("goOn"), offer);
  assert.match(await user.answer("No"), /упакован не полностью/);
  await everythingIsThere(user);

  const sent = await user.send();
  assert.equal(sent.exchange, "upload");
  assert.ok(sent.body.includes("ТН-6") && sent.body.includes("035200010000000016"), sent.body.slice(0, 500));

  // What was sent isn't asked about again.
  await user.open();
  assert.equal(await user.question().count(), 0);
  assert.equal(await user.field("txtNrAwiza").inputValue(), "");
});
console.log("Work that was broken off went on in the page.");
