// The road of a document in a real browser: the order comes in, a line goes into a package, the
// document is sent.
// usage: node road.mjs ADDRESS_OF_THE_PAGE
// The environment's AWIZO_PICTURES names a folder for pictures at three widths.

import assert from "node:assert/strict";

import { requests, User, withPage } from "./user.ts";

await withPage(async (page) => {
  const user = new User(page);
  await user.open();
  assert.deepEqual((await requests()).map((request) => request.exchange),
    ["partner-info", "catalogue", "places", "order"]);
  assert.equal(await user.field("txtNrZam").inputValue(), "ЗК-2026/1147");
  assert.equal(await user.control("grdPozycje").getAttribute("aria-rowcount"), "26");
  await user.picture("main");

  await user.field("txtNrAwiza").fill("ТН/1");
  await user.addPackage("Паллета 1", "035200010000000016");
  assert.equal(await user.control("grdOpakowania").getAttribute("aria-rowcount"), "2");
  await user.packFirstLine();

  const sent = await user.send();
  assert.equal(sent.exchange, "upload");
  assert.equal(sent.cookie, "vird-demo=1");
  assert.ok(sent.body.includes("ТН/1") && sent.body.includes("035200010000000016"), sent.body.slice(0, 500));
});
console.log("The document was packed and sent in the page.");
