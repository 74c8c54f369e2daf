// Documents between the browser's files and the disk of the user's own computer.

import { make } from "./dom.ts";
import { extraButtons } from "./extra_buttons.ts";
import { putFile, readFile, removeFile } from "./opfs.ts";

const ending = ".xml";

/// The control's paths have drives; "c:" is the root here.
function classicPath(path: string): string {
  return `c:${path.replaceAll("/", "\\")}`;
}

function pathOf(classic: string): string {
  return classic.replace(/^[a-z]:/i, "").replaceAll("\\", "/");
}

/// A button that fetches a file of the user's computer. `bring` puts it into the local folder from where
/// it is for a while.
export function computerButton(bring: (name: string, from: string) => Promise<unknown>): HTMLElement {
  const button = make("button", { type: "button" }, ["С компьютера…"]);
  const element = make("div", { class: "beside" }, [extraButtons([button])]);
  const take = async (file: File | undefined) => {
    if (file === undefined) return;
    const path = `/.brought-${crypto.randomUUID()}`;
    await putFile(path, new Uint8Array(await file.arrayBuffer()));
    await bring(file.name, classicPath(path));
    await removeFile(path);
  };
  button.addEventListener("click", () => {
    // A new field each time: the same file may be brought again.
    const input = make("input", { type: "file", accept: ending, hidden: true });
    input.addEventListener("change", () => void take(input.files?.[0]));
    element.querySelector("input")?.remove();
    element.append(input);
    input.click();
  });
  return element;
}

/// Hands a saved document to the user as a download.
export async function handOut(classic: string): Promise<void> {
  const path = pathOf(classic);
  const address = URL.createObjectURL(new Blob([new Uint8Array(await readFile(path))], { type: "application/xml" }));
  make("a", { href: address, download: path.slice(path.lastIndexOf("/") + 1) }).click();
  setTimeout(() => URL.revokeObjectURL(address), 60_000);
}
