// Long lists narrow while one types; dates and times are written in the locale's form; what a scanner types
// before a number doesn't come into fields for numbers.
// usage: node fields.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import type { Locator } from "playwright-core";

import { User, withPage } from "./user.ts";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();

  const date = user.control("txtEstimatedDeliveryDate").locator("input").first();
  assert.equal(await date.inputValue(), "25.11.2026");
  await date.fill("1.12.2026");
  await date.press("Tab");
  await page.waitForFunction((field) => (field as HTMLInputElement).value === "01.12.2026", await date.elementHandle());
  await date.fill("31.2.2026");
  await date.press("Tab");
  await page.waitForFunction((field) => (field as HTMLInputElement).value === "01.12.2026", await date.elementHandle());
  const value = async (name: string, member: string) =>
    user.editor.evaluate(async (element, [asked, wanted]) => {
      const control = element as unknown as { say(line: object): Promise<Record<string, unknown>> };
      return (await control.say({ get: asked }))[wanted];
    }, [name, member] as const);
  assert.equal(await value("txtEstimatedDeliveryDate", "date"), "2026-12-01");
  const time = user.field("txtDespatchAdviceTime");
  await time.fill("905");
  await time.press("Tab");
  await page.waitForFunction((field) => (field as HTMLInputElement).value === "09:05", await time.elementHandle());
  assert.equal(await value("txtDespatchAdviceTime", "time"), "09:05");

  // What the core says of the field before doesn't take the focus from the one that is gone to.
  const wentBack = await user.field("txtNrAwiza").evaluate(async (from: HTMLInputElement) => {
    const root = from.getRootNode() as ShadowRoot;
    const core = root.host as unknown as { say(line: object): Promise<unknown> };
    const to = root.querySelector<HTMLInputElement>('[data-name="txtCodeByBuyer"] input')!;
    from.focus();
    await core.say({ get: "standing" });
    let times = 0;
    from.addEventListener("focus", () => ++times);
    for (const text of ["1", "12", "123"]) {
      from.value = text;
      from.dispatchEvent(new InputEvent("input", { bubbles: true, composed: true }));
    }
    to.focus();
    await core.say({ get: "standing" });
    return times;
  });
  assert.equal(wentBack, 0);

  // Keys that come before the focus has moved on are those of the next field, in their order.
  const typed = await user.field("txtNrAwiza").evaluate(async (from: HTMLInputElement) => {
    const root = from.getRootNode() as ShadowRoot;
    const core = root.host as unknown as { say(line: object): Promise<unknown> };
    from.focus();
    await core.say({ get: "standing" });
    const press = (key: string, keyCode: number) => from.dispatchEvent(
      new KeyboardEvent("keydown", { key, keyCode, bubbles: true, composed: true, cancelable: true }));
    for (let tabs = 0; tabs < 3; ++tabs) press("Tab", 9);
    const atOnce = [press("7", 55), press("9", 57), press("Backspace", 8), press("8", 56)].slice(2);
    while (root.activeElement === from) await core.say({ get: "standing" });
    for (let turn = 0; turn < 5; ++turn) await core.say({ get: "standing" });
    const field = root.activeElement as HTMLInputElement;
    return [...atOnce, field.closest<HTMLElement>("[data-name]")!.dataset["name"], field.value];
  });
  assert.deepEqual(typed, [false, false, "txtNrZam", "ЗК-2026/114778"]);
  const sought = await user.control("grdPozycje").evaluate(async (table: HTMLElement) => {
    const root = table.getRootNode() as ShadowRoot;
    const core = root.host as unknown as { say(line: object): Promise<unknown> };
    table.focus();
    await core.say({ get: "standing" });
    const press = (init: KeyboardEventInit) =>
      table.dispatchEvent(new KeyboardEvent("keydown", { ...init, bubbles: true, composed: true, cancelable: true }));
    press({ key: "f", keyCode: 70, ctrlKey: true });
    for (const key of ["н", "е", "т", "Enter"]) press({ key, keyCode: key === "Enter" ? 13 : 0 });
    for (let turn = 0; turn < 5; ++turn) await core.say({ get: "standing" });
    return (root.activeElement as HTMLInputElement).value;
  });
  assert.equal(sought, "нет");
  await user.control("FindDialog.lblNothing").filter({ hasText: "Такой строки нет." }).waitFor();
  await page.keyboard.press("Escape");
  await user.dialog("FindDialog").waitFor({ state: "detached" });

  // A scanner types into the package's number and a product's EAN.
  const scanned = async (field: Locator, text: string) => {
    const input = (await field.elementHandle()) as unknown as HTMLInputElement;
    await page.waitForFunction(([shown, wanted]) => shown.value === wanted, [input, text] as const);
    assert.doesNotMatch((await field.getAttribute("data-seen")) ?? "", /[(\]]/);
  };
  const noteTyped = (field: Locator) =>
    field.evaluate((input) => {
      const shown = input as HTMLInputElement;
      shown.addEventListener("input", () => (shown.dataset["seen"] += ` ${shown.value}`));
    });
  await user.control("btnDodajOpak").click();
  const number = user.field("DlgSzczegoly.txtSerialNumberN");
  const description = user.field("DlgSzczegoly.txtPackageDesc");
  await noteTyped(number);
  await number.focus();
  for (const code of ["(00)395200010000000011", "]C100395200010000000028", "00395200010000000011"]) {
    await number.selectText();
    await page.keyboard.type(code);
    await scanned(number, code.slice(-18));
  }
  // Slowly, after the separator, over a number.
  await number.selectText();
  await page.keyboard.press("Control+]");
  await page.keyboard.type("00395200010000000028", { delay: 20 });
  await scanned(number, "395200010000000028");
  // Another field keeps its brackets, and what is cut out there is pasted without marks.
  await description.fill("");
  await description.pressSequentially("(00)395200010000000011");
  assert.equal(await description.inputValue(), "(00)395200010000000011");
  await description.selectText();
  await page.keyboard.press("Control+x");
  await number.focus();
  await number.selectText();
  await page.keyboard.press("Control+v");
  await scanned(number, "395200010000000011");
  // What is typed behind a number that is being mended is the field's own.
  await number.selectText();
  await page.keyboard.type("123");
  await scanned(number, "123");
  assert.ok(await number.evaluate((input) => {
    const told = { bubbles: true, composed: true, cancelable: true };
    input.dispatchEvent(new KeyboardEvent("keydown", { ...told, key: "Backspace", keyCode: 8 }));
    (input as HTMLInputElement).setRangeText("", 2, 3, "end");
    input.dispatchEvent(new InputEvent("input", { ...told, inputType: "deleteContentBackward" }));
    return input.dispatchEvent(new InputEvent("beforeinput", { ...told, inputType: "insertText", data: "4" }));
  }));
  // What is no mark isn't lost.
  await number.selectText();
  await page.keyboard.type("(12");
  await page.keyboard.press("Tab");
  await page.waitForFunction((input) => (input as HTMLInputElement).value === "(12", await number.elementHandle());
  await user.control("DlgSzczegoly.btnZamknij").click();
  await user.dialog("DlgSzczegoly").waitFor({ state: "detached" });

  await user.control("btnDodaj").click();
  const ean = user.field("DlgDodaj.cboxEANProd");
  await noteTyped(ean);
  await ean.focus();
  await page.keyboard.type("]E04607000000116");
  await scanned(ean, "4607000000116");
  const name = user.control("DlgDodaj.cboxNazwaProd");
  const options = name.getByRole("option");
  await name.locator("input").pressSequentially("чёрный чай");
  await options.first().filter({ hasText: /Чай чёрный/ }).waitFor();
  const shown = await options.allInnerTexts();
  assert.ok(shown.length >= 3 && shown.every((text) => /чай/i.test(text) && /чёрный/i.test(text)), shown.join(" | "));
  await user.picture("proposals");
  await name.locator("input").press("ArrowDown");
  await name.locator("input").press("ArrowDown");
  await name.locator("input").press("Enter");
  await page.waitForFunction(([field, text]) => field.value === text,
    [(await name.locator("input").elementHandle()) as unknown as HTMLInputElement, shown[1]] as const);
  assert.equal(await options.count(), 0);
  assert.ok(await user.dialog("DlgDodaj").isVisible(), "Enter took the row and nothing else");
  await user.picture("line");
  await page.keyboard.press("Control+g");
  await user.dialog("DlgIsoCodes").waitFor();
  await user.picture("countries");
  const countries = user.control("DlgIsoCodes.grdISO");
  const isCurrent = (text: RegExp) => countries.locator(".row.current").filter({ hasText: text }).waitFor();
  await page.keyboard.press("End");
  await isCurrent(/Япония/);
  await page.keyboard.press("Home");
  await isCurrent(/Австралия/);
  // Keys of the Russian layout can only be made.
  await countries.evaluate((table) => {
    for (const key of "пол") table.dispatchEvent(new KeyboardEvent("keydown", { key, bubbles: true, composed: true, cancelable: true }));
  });
  await isCurrent(/Польша/);
});
console.log("Fields were filled in the page.");
