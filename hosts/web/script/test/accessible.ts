// Every form and box is named, labelled and legible for those who don't see it: no rule of axe-core is
// broken, light and dark.
// usage: node accessible.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";
import fs from "node:fs";
import { createRequire } from "node:module";

import type axe from "axe-core";
import type { Page } from "playwright-core";

import { User, withPage } from "./user.ts";

const rules = fs.readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

async function brokenRules(page: Page): Promise<string[]> {
  const found = await page.evaluate(() => (globalThis as unknown as { axe: typeof axe }).axe.run("awizo-wysylki"));
  return found.violations.flatMap((rule) => rule.nodes.map((node) => `${rule.id} ${node.target.join(" ")}: ${rule.help}`));
}

await withPage(async (page) => {
  const user = new User(page);
  const isSound = async (form: string) => {
    for (const colorScheme of user.schemes()) {
      await user.useScheme(colorScheme);
      assert.deepEqual(await brokenRules(page), [], `${form}, ${colorScheme}`);
    }
  };

  await user.open();
  await page.evaluate(rules);
  // The rules see what is wrong.
  await user.control("btnDodajOpak").evaluate((button) => button.setAttribute("role", "nothing"));
  assert.notDeepEqual(await brokenRules(page), []);
  await user.control("btnDodajOpak").evaluate((button) => button.removeAttribute("role"));

  await user.addPackage("Паллета 1", "035200010000000016");
  await isSound("main form");
  await user.goToFirstLine();
  await user.control("btnEdytuj").click();
  await user.dialog("DlgDodaj").waitFor();
  await isSound("line dialog");
  await page.keyboard.press("Control+g");
  await user.dialog("DlgIsoCodes").waitFor();
  await isSound("countries");
  await page.keyboard.press("Escape");
  await user.dialog("DlgIsoCodes").waitFor({ state: "detached" });
  await user.control("DlgDodaj.Command1").click();
  await user.dialog("DlgdodajPule").waitFor();
  await isSound("quantity dialog");
  await user.control("DlgdodajPule.btnZamknij").click();
  await user.control("DlgDodaj.btnZamknij").click();
  await user.dialog("DlgDodaj").waitFor({ state: "detached" });

  await user.control("btnDodajOpak").click();
  await user.dialog("DlgSzczegoly").waitFor();
  await isSound("package dialog");
  await user.control("DlgSzczegoly.btnDodaj").click();
  await user.editor.getByRole("alertdialog").waitFor();
  await isSound("box");
  await user.answer("OK");
  await user.control("DlgSzczegoly.btnZamknij").click();
  await user.dialog("DlgSzczegoly").waitFor({ state: "detached" });

  await user.control("grdOpakowania").press("Control+l");
  await user.dialog("PapersDialog").waitFor();
  await isSound("papers");
  await user.control("PapersDialog.btnClose").click();
  await user.dialog("PapersDialog").waitFor({ state: "detached" });
  await user.control("grdOpakowania").press("F6");
  await user.editor.locator("section.packing").getByRole("treeitem").first().waitFor();
  await isSound("packing pane");
  await user.editor.locator("section.packing").getByRole("button", { name: "Закрыть" }).click();
  await user.editor.locator("section.packing").waitFor({ state: "hidden" });

  await user.editor.getByRole("button", { name: "Правка", exact: true }).click();
  await user.command("addPackages").waitFor();
  await isSound("menu");
  await page.keyboard.press("Escape");
  await page.keyboard.press("F1");
  await user.editor.locator("dialog.guide h2").nth(1).waitFor();
  await isSound("guide");
  await page.keyboard.press("Escape");

  const lines = user.control("grdPozycje");
  for (const [key, form] of [["Control+f", "FindDialog"], ["F8", "FaultList"], ["F7", "PackagesDialog"], ["Control+d", "DistributionDialog"]]) {
    await lines.press(key!);
    await user.dialog(form!).waitFor();
    await isSound(form!);
    await page.keyboard.press("Escape");
    await user.dialog(form!).waitFor({ state: "detached" });
  }
  await user.choose("showNumbers");
  await user.dialog("NumberRangeDialog").waitFor();
  await isSound("number range");
  await page.keyboard.press("Escape");
  await user.dialog("NumberRangeDialog").waitFor({ state: "detached" });

  await user.control("btnWczytaj").click();
  await user.editor.getByRole("alertdialog").waitFor();
  await isSound("question");
  await user.answer("letGo");
  await user.dialog("DlgWczytajZapisz").waitFor();
  await isSound("file dialog");

  await user.editor.evaluate((element) => {
    const other = document.createElement("awizo-wysylki");
    other.setAttribute("folder", "/OTHER");
    element.replaceWith(other);
  });
  await user.control("btnOffLine").waitFor();
  await isSound("start page");
});
console.log("Nothing in the page is closed to those who don't see it.");
