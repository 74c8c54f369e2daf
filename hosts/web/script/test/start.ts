// Without a partner the element shows the start page: the user brings a partner's file and works off
// line.
// usage: node start.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";
import fs from "node:fs";

import { address, otherComputer, requests, User, withPage } from "./user.ts";

const partnerFile = "9520001000010_9520002000019_partner_INFO.xml";

await withPage(async (page) => {
  const user = new User(page);
  // Plain http from another computer: browsers have no files for it, and the user is told.
  if (process.env["AWIZO_BROWSER"] !== "firefox") {
    await page.goto(address.replace("127.0.0.1", otherComputer));
    await user.editor.getByRole("alert").filter({ hasText: "https://" }).waitFor();
    // So is the user of a browser that can't suspend the core.
    const lame = await page.context().newPage();
    const forget = "delete WebAssembly.Suspending;";
    await lame.addInitScript(`${forget} WebAssembly.compileStreaming = () => { globalThis.compiles = true; return new Promise(() => {}); };`);
    await lame.route("**/worker.mjs", async (route) => {
      const response = await route.fetch();
      await route.fulfill({ response, body: forget + (await response.text()) });
    });
    await lame.goto(address);
    await lame.getByRole("alert").filter({ hasText: "Этот браузер не умеет приостанавливать WebAssembly." }).waitFor();
    assert.equal(await lame.evaluate(() => (globalThis as { compiles?: boolean }).compiles), undefined);
    await lame.close();
  }
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

  const bring = async (buffer: Buffer, name = partnerFile) => {
    const chooser = page.waitForEvent("filechooser");
    await user.editor.getByRole("button", { name: "С компьютера…" }).click();
    await (await chooser).setFiles({ name, mimeType: "application/xml", buffer });
  };
  const kept = () => page.evaluate(async (name) => {
    const root = await navigator.storage.getDirectory();
    const folder = await root.getDirectoryHandle("ДРУГАЯ");
    const names = async (of: FileSystemDirectoryHandle) => {
      const all: string[] = [];
      for await (const one of of.keys()) all.push(one);
      return all;
    };
    const left = (await names(root)).filter((one) => one.startsWith(".brought"));
    return [await (await (await folder.getFileHandle(name)).getFile()).text(), (await names(folder)).length, left.length];
  }, partnerFile);
  const buffer = fs.readFileSync(`demo/folder/${partnerFile}`);
  await bring(buffer);
  await user.control("btnOffLine").and(page.locator(":enabled")).waitFor();
  assert.match(await user.field("cboxPartner").inputValue(), /9520002000019/);
  await user.picture("start");

  // Brought again it takes the old one's place, asked first where they differ.
  const other = buffer.toString("utf8").replace("Магазины рядом", "Магазины далеко");
  assert.notEqual(other, buffer.toString("utf8"));
  await bring(Buffer.from(other));
  assert.match(await user.answer("cancel"), /уже есть другой файл/);
  await bring(Buffer.from(other));
  await user.answer("replace");
  await page.waitForFunction((field) => (field as HTMLInputElement).value.includes("далеко"),
    await user.field("cboxPartner").elementHandle());
  assert.deepEqual(await kept(), [other, 2, 0]);

  // The seller's file that was brought stays as long as the page gives the same as before.
  const beginAnew = () => user.editor.evaluate((element) => element.replaceWith(element.cloneNode()));
  const seller = (name: string) => user.control("lblSeller").filter({ hasText: name }).waitFor();
  const ours = fs.readFileSync("demo/folder/userinfo.xml", "utf8").replace("Товары каждый день", "Другие товары");
  await bring(Buffer.from(ours), "userinfo.xml");
  await user.answer("replace");
  await seller("Другие товары");
  await beginAnew();
  await seller("Другие товары");
  await page.evaluate(async () => {
    const given = await (await navigator.storage.getDirectory()).getDirectoryHandle(".ДРУГАЯ.given");
    const writable = await (await given.getFileHandle("userinfo.xml")).createWritable();
    await writable.write("<what-the-page-gave-before/>");
    await writable.close();
  });
  await beginAnew();
  await seller("Товары каждый день");
  await user.control("btnOffLine").and(page.locator(":enabled")).waitFor();

  // Tab stops where something is shown, and nowhere else.
  await user.control("btnOffLine").focus();
  const stops: string[] = [];
  for (let stop = 0; stop < 6; ++stop) {
    await page.keyboard.press("Tab");
    await user.editor.evaluate((element) => (element as unknown as { say(line: object): Promise<unknown> }).say({ get: "focus" }));
    stops.push(await user.editor.evaluate((element) =>
      element.shadowRoot!.activeElement?.closest<HTMLElement>("[data-name]")?.dataset["name"] ?? ""));
  }
  assert.deepEqual(stops, ["btnOpen", "cboxPartner", "btnOffLine", "btnOpen", "cboxPartner", "btnOffLine"]);

  await user.control("btnOffLine").click();
  await user.isReady();
  assert.equal(await user.control("lblOnLineStatus").innerText(), "Off-Line");
  await user.command("findLine").waitFor({ state: "attached" });
  await user.field("txtNrAwiza").fill("ТН-1");
  await user.editor.locator("h1").filter({ hasText: "ТН-1 *" }).waitFor();

  // A new beginning leads to the start page again, and from there to the choice of a file.
  await user.choose("startAgain");
  await user.answer("letGo");
  await user.control("btnOpen").click();
  await user.dialog("DlgWczytajZapisz").waitFor();
  assert.equal((await requests()).length, asked);
});
console.log("Work began at the start page.");
