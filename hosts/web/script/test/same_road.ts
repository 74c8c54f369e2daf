// The road of a document by the keyboard, from the list of acts that the window's test does too; what is
// saved and what is sent is the document beside that list, byte for byte.
// usage: node same_road.mjs ADDRESS_OF_THE_PAGE

import assert from "node:assert/strict";
import fs from "node:fs";

import { handedOut, requests, User, withPage } from "./user.ts";

interface Act {
  type?: string;
  press?: string;
  times?: number;
  /// The control that Tab leads to.
  tabTo?: string;
}

const road = "tests/roads/first_order";
const acts = JSON.parse(fs.readFileSync(`${road}.json`, "utf8")) as Act[];

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  await user.startAt("2026-11-21T10:15:00");

  /// Answered when all that was done is done, or waits for the user.
  const focus = () => user.editor.evaluate((element) =>
    (element as unknown as { say(line: object): Promise<string> }).say({ get: "focus" }));
  const performOne = async (act: Act) => {
    if (act.type !== undefined) await page.keyboard.type(act.type);
    for (let times = act.press === undefined ? 0 : (act.times ?? 1); times > 0; --times) await page.keyboard.press(act.press!);
    for (let steps = 0; act.tabTo !== undefined && (await focus()) !== act.tabTo; ++steps) {
      assert.ok(steps < 60, `${act.tabTo} can't be reached by Tab`);
      await page.keyboard.press("Tab");
    }
    await focus();
  };

  const perform = async (some: Act[]) => {
    for (const act of some) await performOne(act);
  };

  const saving = acts.findIndex((act) => act.press === "Control+s");
  const sending = acts.findIndex((act) => act.press === "F9");
  await perform(acts.slice(0, saving));
  const saved = await handedOut(page, "Подтверждение_отгрузки_ТН_1.xml", () => perform(acts.slice(saving, sending)));
  await perform(acts.slice(sending));
  const wanted = fs.readFileSync(`${road}.xml`, "utf8");
  const sent = (await requests()).filter((request) => request.exchange === "upload");
  assert.equal(sent.length, 1);
  assert.ok(sent[0]!.body === wanted, sent[0]!.body);
  assert.ok(saved === wanted, saved);
});
console.log("The page ended in the window's documents.");
