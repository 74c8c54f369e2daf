// What was done is taken back and done again by the keys, and the commands name it.
// usage: node steps.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import { User, withPage } from "./user.ts";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  const takeBack = user.editor.locator("[data-step=takeBack]");
  const doAgain = user.editor.locator("[data-step=doAgain]");
  const packages = () => user.control("grdOpakowania").getAttribute("aria-rowcount");
  const said = (words: string) => user.editor.locator(".strip output").filter({ hasText: words }).waitFor();
  assert.equal(await takeBack.innerText(), "Отменить");
  assert.ok(await takeBack.isDisabled());

  await user.addPackage("Паллета 1", "035200010000000016");
  await user.editor.getByRole("button", { name: "Отменить: добавление упаковки 1" }).waitFor();
  assert.equal(await packages(), "2");

  await user.control("grdPozycje").press("Control+z");
  await said("Отменено: добавление упаковки 1");
  assert.notEqual(await user.control("grdOpakowania").getByText("Паллета 1").count(), 1);
  assert.equal(await doAgain.innerText(), "Повторить: добавление упаковки 1");
  assert.ok(await takeBack.isDisabled());

  await user.control("grdPozycje").press("Control+y");
  await said("Повторено: добавление упаковки 1");
  assert.equal(await user.control("grdOpakowania").getByText("Паллета 1").count(), 1);

  // In a field that is being typed in the keys are the field's own.
  const number = user.field("txtNrAwiza");
  await number.click();
  await number.pressSequentially("ТН-7");
  await number.press("Control+z");
  assert.notEqual(await number.inputValue(), "ТН-7");
  assert.equal(await user.control("grdOpakowania").getByText("Паллета 1").count(), 1);

  await number.fill("ТН-8");
  await user.goToFirstLine();
  await user.editor.getByRole("button", { name: "Отменить: поле «Номер документа (транспортной накладной)»" }).click();
  await said("Отменено: поле");
  assert.equal(await number.inputValue(), "");

  // A reload keeps the steps too.
  await doAgain.click();
  await said("Повторено: поле");
  await page.reload();
  await user.answer("goOn");
  await user.isReady();
  assert.equal(await number.inputValue(), "ТН-8");
  await user.control("grdPozycje").press("Control+z");
  await said("Отменено: поле");
  assert.equal(await number.inputValue(), "");
});
console.log("Steps were taken back and done again in the page.");
