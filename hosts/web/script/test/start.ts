// Without a partner the element shows the start page: the user brings a partner's file and works off
// line.
// usage: node start.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";
import fs from "node:fs";

import { requests, User, withPage } from "./user.ts";

const partnerFile = "9520001000010_9520002000019_partner_INFO.xml";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  const asked = (await requests()).length;
  await user.editor.evaluate((element) => {
    const other = document.createElement("awizo-wysylki");
    for (const [name, value] of [["folder", "/ДРУГАЯ"], ["user-info", "userinfo.xml"]]) other.setAttribute(name!, value!);
    element.replaceWith(other);
  });
  await user.control("lblSeller").filter({ hasText: "ООО «Товары каждый день»" }).waitFor();
  assert.ok(await user.control("btnOffLine").isDisabled());
  assert.notEqual(await user.control("lblMissing").innerText(), "");

  const chooser = page.waitForEvent("filechooser");
  await user.editor.getByRole("button", { name: "С компьютера…" }).click();
  const buffer = fs.readFileSync(`demo/folder/${partnerFile}`);
  await (await chooser).setFiles({ name: partnerFile, mimeType: "application/xml", buffer });
  await user.control("btnOffLine").and(page.locator(":enabled")).waitFor();
  assert.match(await user.field("cboxPartner").inputValue(), /9520002000019/);
  await user.picture("start");

  await user.control("btnOffLine").click();
  await user.isReady();
  assert.equal(await user.control("lblOnLineStatus").innerText(), "Off-Line");
  await user.editor.locator("[data-task=findLine]").waitFor();
  await user.field("txtNrAwiza").fill("ТН-1");
  await user.editor.locator("h1").filter({ hasText: "ТН-1 *" }).waitFor();

  // A new beginning leads to the start page again, and from there to the choice of a file.
  await user.editor.locator("[data-task=startAgain]").click();
  await user.answer("letGo");
  await user.control("btnOpen").click();
  await user.dialog("DlgWczytajZapisz").waitFor();
  assert.equal((await requests()).length, asked);
});
console.log("Work began at the start page.");
