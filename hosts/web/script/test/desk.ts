// What the desk shows beside the forms: the current line in words, what is wrong, search, a scanned
// code, marked cells for the clipboard, questions before work is lost, words beside a box,
// distribution.
// usage: node desk.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import { makeFaulty, User, withPage } from "./user.ts";

const words = (text: string) => ({ hasText: text });

await withPage(async (page) => {
  const user = new User(page);
  await page.context().grantPermissions(["clipboard-read", "clipboard-write"]);
  await user.open();
  const lines = user.control("grdPozycje");
  const line = user.editor.locator("output.line");

  // The document in the page's title, and how it stands.
  await user.editor.locator("h1").filter(words("ЗК-2026/1147 *")).waitFor();
  assert.match(await page.title(), /ЗК-2026\/1147 \*$/);
  await user.editor.locator(".strip output").filter(words("Получен в ")).waitFor();

  // The line in words.
  await user.goToFirstLine();
  await lines.press("ArrowDown");
  await line.filter(words("заказано 96 · отгружено 96 · упаковано 0 · осталось 96")).waitFor();

  // Search, and again.
  await lines.press("Control+f");
  await user.field("FindDialog.txtWhat").fill("нет такого");
  await page.keyboard.press("Enter");
  await user.control("FindDialog.lblNothing").filter(words("Такой строки нет.")).waitFor();
  await user.field("FindDialog.txtWhat").fill("крупа");
  await user.picture("find");
  await page.keyboard.press("Enter");
  await user.dialog("FindDialog").waitFor({ state: "detached" });
  await lines.locator('[aria-selected="true"]').filter(words("Крупа")).waitFor();
  await user.goToFirstLine();
  await page.keyboard.press("F3");
  await lines.locator('[aria-selected="true"]').filter(words("Крупа")).waitFor();

  // A scanner types the code and Enter into the table.
  await page.keyboard.type("4600000000008");
  await line.filter(words("Код: 4600000000008")).waitFor();
  await page.keyboard.press("Enter");
  await line.filter(words("Нет строки с кодом 4600000000008")).waitFor();
  await user.goToFirstLine();
  const code = await lines.locator('[data-row="2"] [data-col="1"]').innerText();
  await page.keyboard.type(code);
  await page.keyboard.press("Enter");
  await lines.locator('[data-row="2"][aria-selected="true"]').waitFor();

  // What is wrong; Enter leads there.
  await page.keyboard.press("F8");
  await user.dialog("FaultList").locator("h2").filter(words("Что не так: ")).waitFor();
  await user.picture("faults");
  const faults = user.control("FaultList.grdFaults");
  await faults.getByText("Строка 11 ").first().click();
  await page.keyboard.press("Enter");
  await user.dialog("FaultList").waitFor({ state: "detached" });
  await lines.locator('[data-row="11"][aria-selected="true"]').waitFor();

  // Marked cells go to the clipboard as a spreadsheet takes them.
  await user.goToFirstLine();
  await page.keyboard.press("Shift+ArrowDown");
  await page.keyboard.press("Shift+ArrowRight");
  await lines.locator('[data-row="2"] .marked').nth(1).waitFor();
  assert.equal(await lines.locator(".marked").count(), 4);
  await page.keyboard.press("Control+c");
  const marked = async (row: number) =>
    `${(await lines.locator(`[data-row="${row}"] .marked`).allInnerTexts()).join("\t")}\n`;
  const wanted = (await marked(1)) + (await marked(2));
  await page.waitForFunction(async (text) => (await navigator.clipboard.readText()) === text, wanted);

  // Nothing is lost unasked: another document, the tab, a new beginning.
  await page.keyboard.press("Control+o");
  assert.match(await user.answer("cancel"), /не отправлен и не сохранён после изменений/);
  await user.control("btnWczytaj").click();
  await user.answer("cancel");
  assert.equal(await user.dialog("DlgWczytajZapisz").count(), 0);
  const asked = page.waitForEvent("dialog");
  const leaving = page.evaluate(() => location.reload());
  const question = await asked;
  assert.equal(question.type(), "beforeunload");
  await question.dismiss();
  await leaving;

  // Lines are laid into packages, in one step.
  await user.addPackage("Паллета 1", "035200010000000016");

  // While that is switched on, a scanned product goes into the package, which is one step.
  const scannerPacks = (on: boolean) => user.editor.locator(`[data-task=scannerPacks][aria-checked=${on}]`);
  await user.control("grdOpakowania").locator('[data-row="1"] [data-col="3"]').click();
  await scannerPacks(false).waitFor({ state: "attached" });
  await user.choose("scannerPacks");
  await scannerPacks(true).waitFor({ state: "attached" });
  await page.keyboard.type(code);
  await page.keyboard.press("Enter");
  await line.filter(words("Паллета 1 ← Строка 2")).filter(words("упаковано 1 из")).waitFor();
  await user.picture("scanner");
  await page.keyboard.press("Control+z");
  await user.editor.locator(".strip output").filter(words("Отменено: единица товара в упаковку")).waitFor();
  await user.goToFirstLine();
  await lines.press("ArrowDown");
  await line.filter(words("отгружено 96 · упаковано 0 · осталось 96")).waitFor();

  await lines.press("Control+d");
  await user.control("DistributionDialog.grdParts").getByText("Паллета 1").first().waitFor();
  await user.picture("distribution");
  await user.control("DistributionDialog.btnDo").click();
  assert.match(await user.answer("OK"), /Разложено строк: \d+ из \d+/);
  await user.editor.getByRole("button", { name: "Отменить: раскладка по упаковкам" }).waitFor();
  await user.picture("desk");

  // A box with words of the user's own language beside it.
  await makeFaulty("upload=garbage");
  await user.field("txtNrAwiza").fill("ТН/3");
  await page.keyboard.press("F9");
  const texts: string[] = [];
  while (!texts.at(-1)?.includes("мог дойти")) {
    const box = user.editor.getByRole("alertdialog");
    await box.waitFor();
    const advice = box.locator("#box-advice");
    texts.push((await advice.count()) > 0 ? await advice.innerText() : "");
    await user.picture("advice");
    await user.answer((await box.locator("[data-answer=Yes]").count()) > 0 ? "Yes" : "OK");
    assert.ok(texts.length < 10, texts.join(" | "));
  }

  // A new beginning: nothing of the old session is offered.
  await user.choose("startAgain");
  await user.answer("letGo");
  await user.editor.locator("h1").filter(words("Подтверждение отгрузки")).waitFor();
  assert.equal(await user.question().count(), 0);
  await scannerPacks(true).waitFor({ state: "attached" });
});
console.log("The desk was used in the page.");
