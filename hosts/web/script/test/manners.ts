// What one who works in pages expects: work that lasts takes nothing, the page's own fields keep the
// focus, every button is within the keyboard's reach, a click is the left button's, a short year is one.
// usage: node manners.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import { makeFaulty, User, withPage } from "./user.ts";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  const focused = () => user.editor.evaluate((element) => {
    const active = element.shadowRoot!.activeElement;
    return active?.closest<HTMLElement>("[data-name]")?.dataset["name"] ?? active?.textContent ?? "";
  });
  const focusIs = async (name: string) => {
    for (let tries = 0; tries < 100 && (await focused()) !== name; ++tries) await page.evaluate(() => new Promise(requestAnimationFrame));
    assert.equal(await focused(), name);
  };
  const say = (line: object) =>
    user.editor.evaluate((element, said) => (element as unknown as { say(line: object): Promise<unknown> }).say(said), line);
  const lines = user.control("grdPozycje");
  const currentRow = async () => Number(await lines.locator(".row.current").getAttribute("data-row"));

  // The page's own field keeps the focus, whatever a script does to the editor.
  await page.evaluate(() => document.body.append(Object.assign(document.createElement("input"), { id: "own" })));
  await page.locator("#own").focus();
  await say({ do: "type", on: "txtGoodsIdentity", text: "груз" });
  await say({ do: "focus", on: "txtNrAwiza" });
  await page.evaluate(() => new Promise(requestAnimationFrame));
  assert.equal(await page.evaluate(() => document.activeElement?.id), "own");
  // A click in the editor brings the keys to what was clicked.
  await lines.locator('[data-row="2"] [data-col="2"]').click();
  await focusIs("grdPozycje");
  await page.keyboard.press("ArrowDown");
  await lines.locator('.row.current[data-row="3"]').waitFor();
  await user.field("txtNrAwiza").click();
  await focusIs("txtNrAwiza");

  // Who goes on to another field at once isn't led back to the one before.
  const visited = await user.editor.evaluate(async (element) => {
    const root = element.shadowRoot!;
    const names: string[] = [];
    root.addEventListener("focusin", (event) => names.push((event.target as Element).closest<HTMLElement>("[data-name]")?.dataset["name"] ?? ""));
    for (const name of ["txtGoodsIdentity", "txtCodeByBuyer", "txtNrAwiza"]) root.querySelector<HTMLElement>(`[data-name=${name}] input`)!.focus();
    await (element as unknown as { say(line: object): Promise<unknown> }).say({ get: "focus" });
    await new Promise(requestAnimationFrame);
    return names;
  });
  assert.deepEqual(visited, ["txtGoodsIdentity", "txtCodeByBuyer", "txtNrAwiza"]);

  // F10 leads to the menus, the arrows along and into them, Escape back.
  const press = async (...keys: string[]) => {
    for (const key of keys) await page.keyboard.press(key);
  };
  await press("F10");
  assert.equal(await focused(), "Документ");
  await press("ArrowRight", "ArrowRight");
  assert.equal(await focused(), "Бумаги");
  await press("ArrowDown");
  assert.match(await focused(), /^Этикетки/);
  await user.picture("menu");
  await press("ArrowDown");
  assert.match(await focused(), /^Упаковочный лист/);
  await press("ArrowUp", "ArrowUp");
  assert.equal(await focused(), "Номера упаковок");
  await press("ArrowRight");
  assert.match(await focused(), /^Руководство пользователя/);
  await press("Escape");
  assert.equal(await focused(), "Справка");
  assert.equal(await user.command("showGuide").isVisible(), false);
  await press("Escape");
  await focusIs("txtNrAwiza");
  await press("F10", "ArrowRight", "ArrowRight", "ArrowRight", "Enter", "End", "Enter");
  assert.match(await user.answer("OK"), /Редактор подтверждений отгрузки/);
  await focusIs("txtNrAwiza");

  // A menu has the form's commands too, as their buttons are now; a click elsewhere closes it.
  const edit = user.editor.locator("[role=menuitem][data-command=btnEdytuj]");
  await user.editor.getByRole("button", { name: "Правка", exact: true }).click();
  assert.equal(await edit.isEnabled(), await user.control("btnEdytuj").isEnabled());
  await user.field("txtGoodsIdentity").click();
  await edit.waitFor({ state: "hidden" });
  await focusIs("txtGoodsIdentity");

  // A key that no browser takes.
  assert.match((await user.command("addPackages").getAttribute("title"))!, /\(F7\)$/);
  await page.keyboard.press("F7");
  await user.dialog("PackagesDialog").waitFor();
  await page.keyboard.press("Escape");
  await user.dialog("PackagesDialog").waitFor({ state: "detached" });

  // A table takes the left button's clicks, wherever the button is released.
  await user.goToFirstLine();
  const cell = (await lines.locator('[data-row="3"] [data-col="2"]').boundingBox())!;
  await page.mouse.move(cell.x + 5, cell.y + 5);
  await page.mouse.down();
  await page.mouse.move(cell.x + 5, (await lines.boundingBox())!.y - 20);
  await page.mouse.up();
  await lines.locator('.row.current[data-row="3"]').waitFor();
  await lines.locator('[data-row="4"] [data-col="2"]').click({ button: "right" });
  await say({ get: "grdPozycje" });
  assert.equal(await currentRow(), 3);
  await page.keyboard.press("Escape");
  await lines.locator(".head .cell").nth(2).dblclick();
  await say({ get: "grdPozycje" });
  assert.equal(await user.editor.locator("dialog").count(), 0);

  // The buttons that stick to a dialog's foot lie over no field that has the focus.
  await page.setViewportSize({ width: 800, height: 420 });
  await user.control("btnDodaj").click();
  await user.dialog("DlgDodaj").waitFor();
  const covered = await user.dialog("DlgDodaj").evaluate((dialog) => [...dialog.querySelectorAll("input")].filter((input) => {
    if (input.disabled || !input.checkVisibility()) return false;
    input.focus();
    const { left, bottom } = input.getBoundingClientRect();
    return dialog.ownerDocument.querySelector("awizo-wysylki")!.shadowRoot!.elementFromPoint(left + 4, bottom - 4)
      ?.closest(".form > .beside:last-child") != null;
  }).map((input) => input.closest<HTMLElement>("[data-name]")!.dataset["name"]));
  assert.deepEqual(covered, []);
  await user.control("DlgDodaj.btnZamknij").click();
  await user.dialog("DlgDodaj").waitFor({ state: "detached" });
  await page.setViewportSize({ width: 1280, height: 900 });

  // A year of two figures.
  const date = user.control("txtEstimatedDeliveryDate").locator("input").first();
  await date.fill("1.12.26");
  await date.press("Tab");
  await page.waitForFunction((field) => (field as HTMLInputElement).value === "01.12.2026", await date.elementHandle());
  assert.equal(((await say({ get: "txtEstimatedDeliveryDate" })) as { date: string }).date, "2026-12-01");

  // What is typed so is whole before the next command.
  await date.fill("2.12.26");
  await page.keyboard.press("F7");
  await user.dialog("PackagesDialog").waitFor();
  await page.keyboard.press("Escape");
  await user.dialog("PackagesDialog").waitFor({ state: "detached" });
  assert.equal(((await say({ get: "txtEstimatedDeliveryDate" })) as { date: string }).date, "2026-12-02");
  await date.fill("3.12.26");
  await user.control("btnDodajOpak").click();
  await user.dialog("DlgSzczegoly").waitFor();
  await page.keyboard.press("Escape");
  await user.dialog("DlgSzczegoly").waitFor({ state: "detached" });
  assert.equal(((await say({ get: "txtEstimatedDeliveryDate" })) as { date: string }).date, "2026-12-03");

  // While a document is on its way nothing can be done.
  await makeFaulty("upload=slow:3000");
  const number = user.field("txtNrAwiza");
  await number.fill("ТН/5");
  await user.addPackage("Паллета 1", "035200010000000016");
  await number.click();
  // A question that has no harmless answer stays, as often as one wants to leave it.
  await user.control("btnPrzeslij").click();
  const question = user.editor.getByRole("alertdialog");
  await question.locator("[data-answer=Yes]").waitFor();
  await press("Escape", "Escape", "Escape");
  await page.evaluate(() => new Promise(requestAnimationFrame));
  assert.ok(await question.isVisible());
  await user.answer("No");
  await question.waitFor({ state: "detached" });
  const typing = async () => {
    await user.editor.locator("main[inert]").waitFor();
    await user.editor.locator("output.heard:not([inert])", { hasText: /./ }).waitFor({ state: "attached" });
    await page.keyboard.type("99");
  };
  await Promise.all([user.send(), typing()]);
  await user.editor.locator("main:not([inert])").waitFor();
  assert.equal(await number.inputValue(), "ТН/5");
  await focusIs(((await say({ get: "focus" })) as string) ?? "");

  // What no form has is within reach in a dialog, too.
  await user.control("btnWczytaj").click();
  await user.dialog("DlgWczytajZapisz").waitFor();
  await page.keyboard.press("F10");
  assert.equal(await focused(), "С компьютера…");
});
console.log("The page behaved as one expects.");
