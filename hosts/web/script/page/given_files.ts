// Files that the page gives into the local folder.

import type { Start } from "./messages.ts";
import { makeFolders, putFile, readFile } from "./opfs.ts";

function areSame(one: Uint8Array, other: Uint8Array): boolean {
  return one.length === other.length && one.every((byte, at) => byte === other[at]);
}

/// Puts the file there if it is another than the page gave last, or isn't there: until then what the user
/// has brought in its place stays.
export async function putGivenFile(name: string, bytes: Uint8Array, { folder, given }: Pick<Start, "folder" | "given">): Promise<void> {
  const kept = async (path: string) => readFile(path).catch(() => undefined);
  const path = `${folder}/${name}`;
  const before = `${given}/${name}`;
  const last = await kept(before);
  if (last !== undefined && areSame(last, bytes) && (await kept(path)) !== undefined) return;
  await putFile(path, bytes);
  await makeFolders(given);
  await putFile(before, bytes);
}
