// A saved document is handed out as a download, and a file of the user's computer is opened.
// usage: node files.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import type { ElementHandle } from "playwright-core";

import { handedOut, User, withPage } from "./user.ts";

const oldNumber = "ТН/8";
const newNumber = "ТН-9";

await withPage(async (page) => {
  const user = new User(page);
  const fileDialog = user.dialog("DlgWczytajZapisz");
  const openFromComputer = async (name: string, buffer: Buffer) => {
    await user.control("btnWczytaj").click();
    await chooseFromComputer(name, buffer);
  };
  const chooseFromComputer = async (name: string, buffer: Buffer) => {
    const chooser = page.waitForEvent("filechooser");
    await fileDialog.getByRole("button", { name: "С компьютера…" }).click();
    await (await chooser).setFiles({ name, mimeType: "application/xml", buffer });
    await fileDialog.waitFor({ state: "detached" });
    const boxes = 1 + buffer.toString("utf8").split("<Packing-Sequence>").length - 1;
    for (let box = 0; box < boxes; ++box) await user.answer("OK");
  };

  const numberIs = async (number: string) => {
    const field = (await user.field("txtNrAwiza").elementHandle()) as ElementHandle<HTMLInputElement>;
    await page.waitForFunction(([input, wanted]) => input.value === wanted, [field, number] as const);
  };

  // Whether the files are kept when room is short is asked at the first saving, not at the start.
  await page.addInitScript(() => {
    const counted = Object.assign(globalThis, { asks: 0 });
    // An empty page has no files.
    if ("StorageManager" in globalThis) StorageManager.prototype.persist = async () => ++counted.asks > 0;
  });
  const asks = () => page.evaluate(() => (globalThis as unknown as { asks: number }).asks);
  await user.open();
  assert.equal(await asks(), 0);
  await user.field("txtNrAwiza").fill(oldNumber);
  await user.addPackage("Паллета 1", "035200010000000016");
  const saved = await handedOut(page, "Подтверждение_отгрузки_ТН_8.xml", async () => {
    await user.control("btnZapisz").click();
    assert.match(await user.answer("Yes"), /упакован не полностью/);
    await fileDialog.waitFor();
    assert.equal(await fileDialog.getByRole("button", { name: "С компьютера…" }).count(), 0);
    await user.picture("save");
    await user.control("DlgWczytajZapisz.ImageZapisz").click();
  });
  assert.ok(saved.includes(oldNumber) && saved.includes("035200010000000016"), saved.slice(0, 500));
  assert.equal(await asks(), 1);

  const other = Buffer.from(saved.replaceAll(oldNumber, newNumber));
  await user.control("btnWczytaj").click();
  await user.editor.getByRole("alertdialog").waitFor();
  await user.picture("question");
  assert.match(await user.answer("goOn"), /сохранён, но не отправлен/);
  await fileDialog.waitFor();
  await user.picture("open");
  await chooseFromComputer("awizo.xml", other);
  await numberIs(newNumber);
  await user.control("grdOpakowania").getByText("Паллета 1").waitFor();

  // The folder's own file of that name stays as it is.
  await openFromComputer("awizo.xml", Buffer.from(saved));
  await numberIs(oldNumber);
  const kept = await page.evaluate(async () => {
    const folder = await (await navigator.storage.getDirectory()).getDirectoryHandle("VIRD");
    const text = async (name: string) => (await (await folder.getFileHandle(name)).getFile()).text();
    return [await text("awizo.xml"), await text("awizo (2).xml")];
  });
  assert.deepEqual(kept, [other.toString("utf8"), saved]);

  // A file that the browser has no room for: the user is told, and nothing of it is left.
  await page.evaluate(() => {
    FileSystemFileHandle.prototype.createWritable = () => Promise.reject(new DOMException("", "QuotaExceededError"));
  });
  await user.control("btnWczytaj").click();
  const chooser = page.waitForEvent("filechooser");
  await fileDialog.getByRole("button", { name: "С компьютера…" }).click();
  await (await chooser).setFiles({ name: "большой.xml", mimeType: "application/xml", buffer: other });
  await fileDialog.getByRole("alert").filter({ hasText: "Файл «большой.xml» не взят" }).waitFor();
  const left = await page.evaluate(async () => {
    const names: string[] = [];
    for await (const name of (await navigator.storage.getDirectory()).keys()) names.push(name);
    return names.filter((name) => name.startsWith(".brought"));
  });
  assert.deepEqual(left, []);
});
console.log("Documents went to the computer's disk and came from it.");
