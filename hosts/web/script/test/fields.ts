// Long lists narrow while one types; dates and times are written in the locale's form.
// usage: node fields.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

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

  await user.control("btnDodaj").click();
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
});
console.log("Fields were filled in the page.");
