// F1 shows the guide, at the chapter of where the user is; Escape leads back to the field.
// usage: node guide.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import { User, withPage } from "./user.ts";

await withPage(async (page) => {
  const fetched: string[] = [];
  page.on("request", (request) => fetched.push(new URL(request.url()).pathname));
  const user = new User(page);
  await user.open();
  assert.ok(!fetched.some((path) => path.includes("/guide/")), "the start fetches none of it");

  const guide = user.editor.locator("dialog.guide");
  const text = guide.getByRole("region", { name: "Руководство пользователя" });
  const focused = () => user.editor.evaluate((element) =>
    element.shadowRoot!.activeElement?.closest<HTMLElement>("[data-name]")?.dataset["name"] ?? "");
  const leave = async () => {
    await page.keyboard.press("Escape");
    await guide.waitFor({ state: "detached" });
  };
  /// The heading of the chapter that begins at the top of the text.
  const chapter = () => text.evaluate((region) => {
    const top = region.getBoundingClientRect().top;
    return [...region.querySelectorAll("h2")].find((one) => Math.abs(one.getBoundingClientRect().top - top) < 60)?.textContent ?? "";
  });
  const chapterIs = async (wanted: string) => {
    for (let tries = 0; tries < 200 && (await chapter()) !== wanted; ++tries) await page.evaluate(() => new Promise(requestAnimationFrame));
    assert.equal(await chapter(), wanted);
  };

  // From a field, at its beginning, and back.
  await user.field("txtGoodsIdentity").fill("груз");
  await page.keyboard.press("F1");
  await guide.getByRole("heading", { name: "Первый запуск" }).waitFor();
  assert.equal(await text.evaluate((region) => region.scrollTop), 0);
  await user.picture("guide");
  const picture = text.getByRole("img", { name: "Главное окно" });
  await page.waitForFunction((one) => (one as HTMLImageElement).naturalWidth > 0, await picture.elementHandle());
  assert.ok((await text.getByRole("table").count()) > 0);
  // Keys go to the guide alone: they read on in it, and none reaches the form.
  await page.keyboard.type("123");
  // Not even to the browser, whose own they would be.
  const kept = await text.evaluate((region) => [[112, false], [83, true], [70, true]].map(([keyCode, ctrlKey]) => !region.dispatchEvent(
    new KeyboardEvent("keydown", { keyCode: Number(keyCode), ctrlKey: ctrlKey === true, bubbles: true, composed: true, cancelable: true }))));
  assert.deepEqual(kept, [true, true, false], "the browser's search finds in the guide");
  await page.keyboard.press("End");
  await page.waitForFunction((region) => region!.scrollTop > 0, await text.elementHandle());
  await leave();
  assert.equal(await focused(), "txtGoodsIdentity");
  assert.equal(await user.field("txtGoodsIdentity").inputValue(), "груз");

  // Contents.
  await page.keyboard.press("F1");
  await guide.getByRole("navigation", { name: "Содержание" }).getByRole("button", { name: "Клавиши" }).click();
  await chapterIs("Клавиши");
  const isAtChapter = (name: string) =>
    text.getByRole("heading", { name, exact: true }).evaluate((heading) => heading.matches(":focus"));
  assert.ok(await isAtChapter("Клавиши"), "a screen reader reads on there");
  await guide.getByRole("navigation").getByRole("button").last().press("Enter");
  // The last chapter is too short to come to the top.
  await page.waitForFunction((region) => region!.scrollTop + region!.clientHeight >= region!.scrollHeight - 2, await text.elementHandle());
  await leave();

  // In a dialog and in its box.
  await user.control("btnDodajOpak").click();
  await user.dialog("DlgSzczegoly").waitFor();
  await user.field("DlgSzczegoly.txtPackageDesc").click();
  await page.keyboard.press("F1");
  await chapterIs("Упаковки");
  assert.ok(await isAtChapter("Упаковки"));
  await user.picture("guide-chapter");
  await leave();
  assert.equal(await focused(), "DlgSzczegoly.txtPackageDesc");
  await user.control("DlgSzczegoly.btnDodaj").click();
  const box = user.editor.getByRole("alertdialog");
  await box.waitFor();
  await page.keyboard.press("F1");
  await chapterIs("Упаковки");
  await leave();
  assert.ok(await box.getByRole("button").evaluate((button) => button.matches(":focus")));
  await user.answer("OK");
  await user.control("DlgSzczegoly.btnZamknij").click();
  await user.dialog("DlgSzczegoly").waitFor({ state: "detached" });

  // By the menu; the closing button; the start page's own button.
  await user.choose("showGuide");
  await guide.getByRole("button", { name: "Закрыть" }).click();
  await guide.waitFor({ state: "detached" });
  await user.editor.evaluate((element) => {
    const other = document.createElement("awizo-wysylki");
    other.setAttribute("folder", "/OTHER");
    element.replaceWith(other);
  });
  await user.editor.getByRole("button", { name: "С компьютера…" }).focus();
  await page.keyboard.press("F1");
  await guide.getByRole("heading", { name: "Первый запуск" }).waitFor();
  await leave();
  await user.editor.getByRole("button", { name: "Руководство пользователя" }).click();
  await guide.waitFor();
  await leave();

  // The element is taken out before the guide comes, and put back.
  await user.editor.evaluate((element) => {
    const place = element.parentElement!;
    const button = element.shadowRoot!.querySelector<HTMLButtonElement>("button[title=F1]")!;
    button.click();
    element.remove();
    place.append(element);
  });
  await user.editor.getByRole("button", { name: "С компьютера…" }).focus();
  assert.equal(await guide.count(), 0);
  await page.keyboard.press("F1");
  await guide.getByRole("heading", { name: "Первый запуск" }).waitFor();
  await leave();

  const hosts = new Set(fetched.filter((path) => path.includes("/guide/")).map((path) => path.replace(/[^/]*$/, "")));
  assert.deepEqual([...hosts].sort(), ["/vird/page/guide/", "/vird/page/guide/images/"]);
});
console.log("The guide was read in the page.");
