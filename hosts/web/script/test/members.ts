// What a page's script does with the element: properties, their event, methods.
// usage: node members.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";

import type { ControlElement } from "../page/control_element.ts";
import { User, withPage } from "./user.ts";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  const script = <Result>(work: (element: ControlElement) => Result) =>
    user.editor.evaluate((element, text) => (0, eval)(`(${text})`)(element) as Result, work.toString());

  assert.equal(await script((element) => element.OnLine), "");
  await user.control("btnPrzeslij").waitFor();
  /// The property that the event tells of, and its value then.
  const set = (name: "OnLine" | "DebugLevel", value: string) =>
    user.editor.evaluate((element, [name, value]) => new Promise<string[]>((resolve) => {
      const control = element as ControlElement;
      control.addEventListener("propertychanged", (event) => {
        const changed = (event as CustomEvent<"OnLine" | "DebugLevel">).detail;
        resolve([changed, control[changed]]);
      }, { once: true });
      control[name] = value;
    }), [name, value] as const);
  assert.deepEqual(await set("OnLine", "Off"), ["OnLine", "Off"]);
  await user.control("btnPrzeslij").waitFor({ state: "hidden" });
  assert.deepEqual(await set("DebugLevel", "4"), ["DebugLevel", "4"]);
  assert.deepEqual(await set("DebugLevel", "many"), ["DebugLevel", ""]);

  assert.equal(await script((element) => element.GetPackedQuantity("2@A@1@1,5$3@B@1@2")), "3,500");
  assert.equal(await script((element) => element.RemoveOldPackRef("2@A@1@1$3@B@1@2", ["2"])), "3@B@1@2");
  assert.deepEqual(await script((element) => element.ArrayRemoveItem(["a", "b", "c"], 1)), ["a", "c"]);
  assert.deepEqual(await script((element) => Promise.all([
    element.IndexGrdPozycje(1, 2), element.IndexGrdOpak(1, 1), element.IndexGrdSuma(2, 1),
  ])), [25, 16, 7]);
  await assert.rejects(script((element) => element.say({ call: "NoProcedure" })));

  await script((element) => {
    const told = element.say({ do: "click", on: "btnDodajOpak" }).then(() => "done", (error: Error) => error.message);
    Object.assign(globalThis, { told });
  });
  await user.dialog("DlgSzczegoly").waitFor();

  // Without a control the properties are the attributes.
  assert.deepEqual(await script((element) => {
    element.remove();
    element.OnLine = "On";
    return [element.OnLine, element.getAttribute("online"), element.DebugLevel];
  }), ["On", "On", ""]);
  // The click waited for its dialog's end.
  assert.equal(await page.evaluate("told"), "The control has ended.");
});
console.log("A script used the element's members.");
