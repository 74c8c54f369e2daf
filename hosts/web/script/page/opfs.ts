// The files of the page's origin, which the browser keeps for it alone. Paths are those of a system
// with one root.

import { bytesOf, textOf, type Field } from "../fields.ts";
import { failed, good, type RunTimeErrorName } from "../errors.ts";

const errorNames: Record<string, RunTimeErrorName> = {
  NotFoundError: "pathNotFound",
  TypeMismatchError: "pathFileAccess",
  NoModificationAllowedError: "permissionDenied",
  NotAllowedError: "permissionDenied",
  SecurityError: "permissionDenied",
  InvalidStateError: "pathFileAccess",
  QuotaExceededError: "diskFull",
  TypeError: "badFileName",
};

/// A file that is there already, or a name that is a folder's.
class Taken extends Error {}
class FileMissing extends Error {}

const openFiles = new Map<string, FileSystemSyncAccessHandle>();
let lastHandle = 0;

function errorName(error: unknown): RunTimeErrorName {
  if (error instanceof FileMissing) return "fileNotFound";
  if (error instanceof Taken) return "pathFileAccess";
  if (error instanceof DOMException || error instanceof TypeError) return errorNames[error.name] ?? "pathFileAccess";
  throw error;
}

/// The answer to a question that takes time: what the work returns, or its error.
export async function done(work: () => Promise<readonly Field[] | void>): Promise<readonly Field[]> {
  try {
    return [good, ...((await work()) ?? [])];
  } catch (error) {
    return failed(errorName(error));
  }
}

export function namesOf(path: string): string[] {
  const names: string[] = [];
  for (const name of path.split("/")) {
    if (name === "..") names.pop();
    else if (name !== "" && name !== ".") names.push(name);
  }
  return names;
}

export async function folderOf(names: readonly string[], create = false): Promise<FileSystemDirectoryHandle> {
  let folder = await navigator.storage.getDirectory();
  for (const name of names) folder = await folder.getDirectoryHandle(name, { create });
  return folder;
}

async function fileOf(path: string, create: boolean): Promise<FileSystemFileHandle> {
  const names = namesOf(path);
  const name = names.pop() ?? "";
  const folder = await folderOf(names);
  try {
    return await folder.getFileHandle(name, { create });
  } catch (error) {
    if (error instanceof DOMException && error.name === "NotFoundError") throw new FileMissing();
    throw error;
  }
}

async function replace(path: string, bytes: Uint8Array): Promise<void> {
  const file = await fileOf(path, true);
  const writable = await file.createWritable();
  await writable.write(new Uint8Array(bytes));
  await writable.close();
}

export async function readFile(path: string): Promise<Uint8Array> {
  return new Uint8Array(await (await (await fileOf(path, false)).getFile()).arrayBuffer());
}

async function exists(path: string): Promise<boolean> {
  try {
    await fileOf(path, false);
    return true;
  } catch (error) {
    if (error instanceof FileMissing) return false;
    throw error;
  }
}

/// The name by which the open file is known. `how` is "create", "continue" or "new".
export async function openFile(path: string, how: string): Promise<string> {
  if (how === "new" && (await exists(path))) throw new Taken();
  const file = await (await fileOf(path, true)).createSyncAccessHandle();
  if (how !== "continue") file.truncate(0);
  const handle = String(++lastHandle);
  openFiles.set(handle, file);
  return handle;
}

async function isFolder(path: string): Promise<boolean> {
  try {
    await folderOf(namesOf(path));
    return true;
  } catch {
    return false;
  }
}

async function makeFolder(path: string): Promise<void> {
  const names = namesOf(path);
  const name = names.pop() ?? "";
  const parent = await folderOf(names);
  for await (const taken of parent.keys()) if (taken === name) throw new Taken();
  await parent.getDirectoryHandle(name, { create: true });
}

async function namesIn(path: string, kind: FileSystemHandleKind, ending: string): Promise<string[]> {
  const names: string[] = [];
  for await (const [name, entry] of (await folderOf(namesOf(path))).entries()) {
    if (entry.kind === kind && !name.startsWith(".") && name.toLowerCase().endsWith(ending.toLowerCase())) {
      names.push(name);
    }
  }
  return names.sort((one, other) => (one.toLowerCase() < other.toLowerCase() ? -1 : 1));
}

/// Makes all folders of the path.
export async function makeFolders(path: string): Promise<void> {
  await folderOf(namesOf(path), true);
}

export async function putFile(path: string, bytes: Uint8Array): Promise<void> {
  await replace(path, bytes);
}

export async function removeFile(path: string): Promise<void> {
  const names = namesOf(path);
  const name = names.pop() ?? "";
  await (await folderOf(names)).removeEntry(name);
}

/// Answers the core's questions about files that take time; nothing for other questions.
export function answerAboutFiles(question: string, fields: Uint8Array[]): Promise<readonly Field[]> | undefined {
  const path = () => textOf(fields[0]);
  switch (question) {
    case "read":
      return done(async () => [await readFile(path())]);
    case "replace":
      return done(() => replace(path(), bytesOf(fields[1])));
    case "open":
      return done(async () => [await openFile(path(), textOf(fields[1]))]);
    case "isFolder":
      return done(async () => [(await isFolder(path())) ? "1" : "0"]);
    case "makeFolder":
      return done(() => makeFolder(path()));
    case "folders":
      return done(() => namesIn(path(), "directory", ""));
    case "files":
      return done(() => namesIn(path(), "file", textOf(fields[1])));
    default:
      return undefined;
  }
}

/// The same about files that are open, which are answered at once.
export function answerAboutOpenFiles(question: string, fields: Uint8Array[]): readonly Field[] | undefined {
  const name = textOf(fields[0] ?? "");
  const file = openFiles.get(name);
  try {
    switch (question) {
      case "append":
        file?.write(bytesOf(fields[1]) as Uint8Array<ArrayBuffer>, { at: file.getSize() });
        return [good];
      case "flush":
        file?.flush();
        return [good];
      case "close":
        file?.close();
        openFiles.delete(name);
        return [good];
      default:
        return undefined;
    }
  } catch (error) {
    return failed(errorName(error));
  }
}
