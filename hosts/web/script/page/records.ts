// The records of sessions, in a folder of their own. A record belongs to the worker that holds the
// lock of its name, so that no other tab takes it.

import { textOf, type Field } from "../fields.ts";
import { done, folderOf, makeFolders, namesOf, openFile, readFile } from "./opfs.ts";

const ending = ".record";
/// The locks of a worker that was ended, as by a reload, go a moment later than it.
const patience = 500;

const held = new Map<string, () => void>();
/// Those that this worker writes.
const own = new Set<string>();
/// Those of others.
const taken = new Set<string>();

function claim(path: string): Promise<boolean> {
  if (held.has(path)) return Promise.resolve(true);
  if (taken.has(path)) return Promise.resolve(false);
  return new Promise((resolve) => {
    const keep = () => {
      resolve(true);
      return new Promise<void>((release) => held.set(path, release));
    };
    navigator.locks.request(`awizo ${path}`, { signal: AbortSignal.timeout(patience) }, keep).catch(() => {
      taken.add(path);
      resolve(false);
    });
  });
}

function release(path: string): void {
  held.get(path)?.();
  held.delete(path);
}

async function isInUse(path: string): Promise<boolean> {
  if (own.has(path)) return true;
  if (held.has(path)) return false;
  const free = await claim(path);
  if (free) release(path);
  return !free;
}

async function filesIn(folder: string): Promise<File[]> {
  const files: File[] = [];
  try {
    for await (const [name, entry] of (await folderOf(namesOf(folder))).entries()) {
      if (entry.kind === "file" && name.endsWith(ending)) files.push(await (entry as FileSystemFileHandle).getFile());
    }
  } catch (error) {
    if (!(error instanceof DOMException && error.name === "NotFoundError")) throw error;
  }
  return files;
}

async function records(folder: string): Promise<Field[]> {
  const fields = (await filesIn(folder)).map(async (file) => [
    file.name, String(file.size), String(Math.floor(file.lastModified / 1000)),
    (await isInUse(`${folder}/${file.name}`)) ? "1" : "0",
  ]);
  return (await Promise.all(fields)).flat();
}

async function create(folder: string): Promise<Field[]> {
  await makeFolders(folder);
  const name = `${Date.now()}-${crypto.randomUUID()}${ending}`;
  const path = `${folder}/${name}`;
  await claim(path);
  own.add(path);
  return [name, await openFile(path, "new")];
}

async function read(path: string): Promise<Field[]> {
  if (!(await claim(path))) throw new DOMException("another tab's", "NotAllowedError");
  return [await readFile(path)];
}

async function remove(folder: string, name: string): Promise<void> {
  await (await folderOf(namesOf(folder))).removeEntry(name);
  release(`${folder}/${name}`);
}

/// Answers the core's questions about records; nothing for other questions.
export function answerAboutRecords(question: string, fields: Uint8Array[]): Promise<readonly Field[]> | undefined {
  const folder = () => textOf(fields[0]);
  const name = () => textOf(fields[1]);
  switch (question) {
    case "records":
      return done(() => records(folder()));
    case "newRecord":
      return done(() => create(folder()));
    case "readRecord":
      return done(() => read(`${folder()}/${name()}`));
    case "removeRecord":
      return done(() => remove(folder(), name()));
    default:
      return undefined;
  }
}
