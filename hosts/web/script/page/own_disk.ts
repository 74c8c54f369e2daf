// Documents between the browser's files and the disk of the user's own computer.

import { make } from "./dom.ts";
import { exists, putFile, readFile } from "./opfs.ts";

const ending = ".xml";

/// The control's paths have drives; "c:" is the root here.
function classicPath(path: string): string {
  return `c:${path.replaceAll("/", "\\")}`;
}

function pathOf(classic: string): string {
  return classic.replace(/^[a-z]:/i, "").replaceAll("\\", "/");
}

/// A path of the folder that no file has, whose name the file lists show.
async function freePath(folder: string, name: string): Promise<string> {
  const plain = name.replace(/^\.+/, "");
  const stem = plain.toLowerCase().endsWith(ending) ? plain.slice(0, -ending.length) : plain;
  let path = `${folder}/${stem}${ending}`;
  for (let number = 2; await exists(path); ++number) path = `${folder}/${stem} (${number})${ending}`;
  return path;
}

/// A button that brings a file of the user's computer into the folder, and tells its path there.
export function computerButton(folder: string, brought: (path: string) => void): HTMLElement {
  const input = make("input", { type: "file", accept: ending, hidden: true });
  const button = make("button", { type: "button" }, ["С компьютера…"]);
  button.addEventListener("click", () => input.click());
  input.addEventListener("change", async () => {
    const file = input.files?.[0];
    if (file === undefined) return;
    const path = await freePath(folder, file.name);
    await putFile(path, new Uint8Array(await file.arrayBuffer()));
    brought(classicPath(path));
  });
  return make("div", { class: "beside" }, [button, input]);
}

/// Hands a saved document to the user as a download.
export async function handOut(classic: string): Promise<void> {
  const path = pathOf(classic);
  const address = URL.createObjectURL(new Blob([new Uint8Array(await readFile(path))], { type: "application/xml" }));
  make("a", { href: address, download: path.slice(path.lastIndexOf("/") + 1) }).click();
  setTimeout(() => URL.revokeObjectURL(address), 60_000);
}
