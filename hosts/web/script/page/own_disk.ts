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

/// `name` is what the user calls the file, `from` where it is for a while.
type Bring = (name: string, from: string) => Promise<unknown>;

function refusal(name: string): string {
  return `Файл «${name}» не взят: браузеру не удалось прочитать его или сохранить у себя. Проверьте, есть ли место на диске, и выберите файл снова.`;
}

/// Takes the file into the browser, where it is as long as it is being brought.
async function take(file: File, bring: Bring): Promise<void> {
  const path = `/.brought-${crypto.randomUUID()}`;
  try {
    await putFile(path, new Uint8Array(await file.arrayBuffer()));
    await bring(file.name, classicPath(path));
  } finally {
    // A file that didn't come isn't there.
    await removeFile(path).catch(() => undefined);
  }
}

/// A browser that is short of room clears what it wasn't asked to keep. Firefox asks the user in its turn.
export function askToKeepFiles(): void {
  navigator.storage?.persist?.().catch(() => undefined);
}

/// Lets the user choose a file of the computer. The field for that stands in the place meanwhile, as do
/// words on a file that couldn't be taken.
export function fetchFile(place: ParentNode, bring: Bring): void {
  const fetched = async (file: File | undefined) => {
    if (file === undefined) return;
    await take(file, bring).catch(() => place.append(make("p", { class: "refusal", role: "alert" }, [refusal(file.name)])));
  };
  // A new field each time: the same file may be brought again.
  const input = make("input", { type: "file", accept: ending, hidden: true });
  input.addEventListener("change", () => void fetched(input.files?.[0]));
  for (const old of place.querySelectorAll(":scope > input[type=file], :scope > .refusal")) old.remove();
  place.append(input);
  input.click();
}

/// A button that fetches a file of the user's computer, with others beside it.
export function computerButton(bring: Bring, others: HTMLElement[] = []): HTMLElement {
  const button = make("button", { type: "button" }, ["С компьютера…"]);
  const element = make("div", { class: "beside" }, [extraButtons([button, ...others])]);
  button.addEventListener("click", () => fetchFile(element, bring));
  return element;
}

function download(name: string, content: Blob): void {
  const address = URL.createObjectURL(content);
  make("a", { href: address, download: name }).click();
  setTimeout(() => URL.revokeObjectURL(address), 60_000);
}

/// Hands a saved document to the user as a download.
export async function handOut(classic: string): Promise<void> {
  const path = pathOf(classic);
  download(path.slice(path.lastIndexOf("/") + 1), new Blob([new Uint8Array(await readFile(path))], { type: "application/xml" }));
}

/// The same with a table for spreadsheets.
export function handOutTable(name: string, text: string): void {
  download(name, new Blob([text], { type: "text/csv" }));
}
