// Several packages at once, with the firm's own numbers; lines laid into packages; both stopped and
// taken back in one step.
// usage: node assistants.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import { User, withPage } from "./user.ts";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  const packages = user.control("grdOpakowania");
  const rowsArePackages = (count: number) => packages.and(page.locator(`[aria-rowcount="${count + 1}"]`)).waitFor();
  const several = async (count: string, description: string) => {
    await packages.press("F7");
    await user.field("PackagesDialog.txtCount").fill(count);
    await user.field("PackagesDialog.txtDescription").fill(description);
    await user.field("PackagesDialog.txtPlace").fill("9520002001016");
  };

  // Without numbers none can be added, and the user is told why.
  await several("3", "Короб #");
  await user.control("PackagesDialog.btnAdd").click();
  assert.match(await user.answer("OK"), /^Добавлено упаковок: 0 из 3/);

  // The first package asks for this browser's part of the firm's numbers, and leads to where it is entered.
  await user.control("btnDodajOpak").click();
  const wantingPackage = user.dialog("DlgSzczegoly");
  const note = (words: RegExp) => wantingPackage.locator(".note").filter({ hasText: words }).waitFor();
  await note(/^У этого браузера ещё нет номеров упаковок/);
  await user.picture("no-range");
  await page.keyboard.press("F10");
  await wantingPackage.locator("[data-task=showNumbers]:focus").waitFor();
  await page.keyboard.press("Enter");
  await user.field("NumberRangeDialog.txtPrefix").fill("9520001");
  await user.field("NumberRangeDialog.txtFirst").fill("1");
  await user.field("NumberRangeDialog.txtLast").fill("999999");
  await user.picture("range");
  await user.control("NumberRangeDialog.btnSave").click();
  await user.dialog("NumberRangeDialog").waitFor({ state: "detached" });
  await note(/^осталось номеров: \d+$/);
  assert.match(await user.field("DlgSzczegoly.txtSerialNumberN").inputValue(), /^09520001000000001\d$/);
  assert.equal(await wantingPackage.locator("[data-task=showNumbers]").count(), 0);
  await user.control("DlgSzczegoly.btnZamknij").click();
  await wantingPackage.waitFor({ state: "detached" });

  // The range is this browser's own; a part of it may be handed on.
  await user.choose("showNumbers");
  await user.control("NumberRangeDialog.lblPlace").filter({ hasText: /^Эти номера даёт только этот браузер/ }).waitFor();
  await user.field("NumberRangeDialog.txtPartCount").fill("1000");
  await user.field("NumberRangeDialog.txtPartPlace").fill("Склад 2");
  await user.control("NumberRangeDialog.btnHandOut").click();
  await user.control("NumberRangeDialog.lblDoubt").filter({ hasText: /префикс 9520001, номера с 999000 по 999999\.$/ }).waitFor();
  assert.equal(await user.field("NumberRangeDialog.txtLast").inputValue(), "998999");
  await user.control("NumberRangeDialog.btnClose").click();
  await user.dialog("NumberRangeDialog").waitFor({ state: "detached" });

  await several("3", "Короб #");
  await user.control("PackagesDialog.lblExample").filter({ hasText: "Короб 3" }).waitFor();
  await user.picture("packages");
  await user.control("PackagesDialog.btnAdd").click();
  await rowsArePackages(3);
  await packages.getByText("Короб 3").waitFor();

  // The next number stands in the dialog of a single package, and its words beside it.
  await user.control("btnDodajOpak").click();
  const number = await user.field("DlgSzczegoly.txtSerialNumberN").inputValue();
  assert.match(number, /^0952000100000000[45]\d$/);
  await user.picture("package");
  await user.control("DlgSzczegoly.btnZamknij").click();
  await user.dialog("DlgSzczegoly").waitFor({ state: "detached" });

  await packages.press("Control+z");
  await packages.getByText("Короб 3").waitFor({ state: "detached" });

  // What takes long is stopped; what is done stays.
  await several("500", "Паллета #");
  await user.control("PackagesDialog.btnAdd").click();
  await user.editor.locator("dialog").filter({ hasText: /^Добавлено упаковок: \d+ из 500/ }).waitFor();
  await page.keyboard.press("Escape");
  const [, done] = /^Добавлено упаковок: (\d+) из 500/.exec(await user.answer("OK")) ?? [];
  assert.ok(Number(done) > 0 && Number(done) < 500, String(done));
  await rowsArePackages(Number(done));
  await user.editor.getByRole("button", { name: /^Отменить: добавление нескольких упаковок/ }).click();
  await packages.getByText("Паллета").first().waitFor({ state: "detached" });

  // Another tab gives other numbers: what was given is given once.
  const otherPage = await page.context().newPage();
  const other = new User(otherPage);
  await other.open();
  await other.control("btnDodajOpak").click();
  const its = await other.field("DlgSzczegoly.txtSerialNumberN").inputValue();
  assert.match(its, /^09520001\d{10}$/);
  assert.ok(its > number, `${its} ${number}`);
});
console.log("The assistants worked in the page.");
