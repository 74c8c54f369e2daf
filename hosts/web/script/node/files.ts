// The computer's files, with the errors and the care that the native program has.

import fs from "node:fs";
import path from "node:path";

import { bytesOf, textOf, type Field } from "../fields.ts";
import { failed, good, type RunTimeErrorName } from "../errors.ts";

const errorNames: Record<string, RunTimeErrorName> = {
  ENOENT: "pathNotFound",
  ENOTDIR: "pathNotFound",
  EACCES: "permissionDenied",
  EPERM: "permissionDenied",
  EROFS: "permissionDenied",
  ENOSPC: "diskFull",
  EDQUOT: "diskFull",
  EFBIG: "diskFull",
  ENODEV: "deviceUnavailable",
  ENXIO: "deviceUnavailable",
  ENOMEDIUM: "diskNotReady",
  EIO: "diskNotReady",
  ENAMETOOLONG: "badFileName",
  EINVAL: "badFileName",
  EILSEQ: "badFileName",
  ENOMEM: "outOfMemory",
};
const ownersAlone = 0o600;
const allPermissions = 0o7777;
const { O_RDONLY, O_WRONLY, O_CREAT, O_EXCL, O_TRUNC, O_APPEND, O_NOFOLLOW, O_NONBLOCK } = fs.constants;
const howToOpen: Record<string, number> = {
  create: O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_NONBLOCK,
  continue: O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK,
  new: O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW | O_NONBLOCK,
};

/// A file that is none: a device or a pipe may have no end.
class NoFile extends Error {}

function codeOf(error: unknown): string | undefined {
  return error instanceof Error ? (error as NodeJS.ErrnoException).code : undefined;
}

function folderExists(file: string): boolean {
  const slash = file.lastIndexOf("/");
  return slash < 0 || fs.existsSync(file.slice(0, slash + 1));
}

function errorName(error: unknown): RunTimeErrorName {
  if (error instanceof NoFile) return "pathFileAccess";
  const code = codeOf(error);
  if (code === undefined) throw error;
  return errorNames[code] ?? "pathFileAccess";
}

function done(work: () => readonly Field[] | void): readonly Field[] {
  try {
    return [good, ...(work() ?? [])];
  } catch (error) {
    return failed(errorName(error));
  }
}

/// The same for a file, which may be missing where its folder isn't.
function doneWithFile(file: string, work: () => readonly Field[] | void): readonly Field[] {
  try {
    return [good, ...(work() ?? [])];
  } catch (error) {
    return failed(codeOf(error) === "ENOENT" && folderExists(file) ? "fileNotFound" : errorName(error));
  }
}

function withOpen<Result>(file: string, flags: number, work: (descriptor: number) => Result, mode = 0o666): Result {
  const descriptor = fs.openSync(file, flags, mode);
  try {
    return work(descriptor);
  } finally {
    fs.closeSync(descriptor);
  }
}

function readAll(file: string): Uint8Array {
  return withOpen(file, O_RDONLY | O_NONBLOCK, (descriptor) => {
    if (!fs.fstatSync(descriptor).isFile()) throw new NoFile();
    return fs.readFileSync(descriptor);
  });
}

function writeAll(descriptor: number, bytes: Uint8Array): void {
  for (let at = 0; at < bytes.length; ) at += fs.writeSync(descriptor, bytes, at);
}

function statOf(file: string): fs.Stats | undefined {
  return fs.statSync(file, { throwIfNoEntry: false });
}

function behindLinks(file: string): string {
  try {
    return fs.realpathSync(file);
  } catch {
    return file;
  }
}

/// A new file beside the target takes its name once it is whole.
function replace(file: string, bytes: Uint8Array): void {
  const target = behindLinks(file);
  const old = statOf(target);
  if (old?.isDirectory()) throw new NoFile();
  if (old !== undefined) fs.accessSync(target, fs.constants.W_OK);
  if (old !== undefined && !old.isFile()) {
    withOpen(target, O_WRONLY | O_NONBLOCK, (descriptor) => writeAll(descriptor, bytes));
    return;
  }
  const folder = target.slice(0, target.lastIndexOf("/") + 1) || "./";
  let made = "";
  for (let attempt = 0; made === "" || fs.existsSync(made); ++attempt) {
    made = `${folder}.awizo-${process.pid}-${attempt}`;
  }
  try {
    withOpen(made, O_WRONLY | O_CREAT | O_EXCL, (descriptor) => {
      if (old !== undefined) fs.fchmodSync(descriptor, old.mode & allPermissions);
      writeAll(descriptor, bytes);
      fs.fsyncSync(descriptor);
    });
    fs.renameSync(made, target);
  } catch (error) {
    fs.rmSync(made, { force: true });
    throw error;
  }
}

function lowLatin(text: string): string {
  return text.replace(/[A-Z]/g, (letter) => letter.toLowerCase());
}

function byName(left: string, right: string): number {
  const compare = (one: string, other: string) => Buffer.compare(Buffer.from(one), Buffer.from(other));
  return compare(lowLatin(left), lowLatin(right)) || compare(left, right);
}

function namesIn(folder: string, ending: string, fits: (stats: fs.Stats) => boolean): string[] {
  const names: string[] = [];
  for (const bytes of fs.readdirSync(folder, "buffer")) {
    const name = bytes.toString();
    const canBeListed = Buffer.from(name).equals(bytes) && !name.startsWith(".") && !name.includes("\\");
    if (!canBeListed || !lowLatin(name).endsWith(lowLatin(ending))) continue;
    const stats = statOf(path.join(folder, name));
    if (stats !== undefined && fits(stats)) names.push(name);
  }
  return names.sort(byName);
}

function open(file: string, how: string): string {
  const descriptor = fs.openSync(file, howToOpen[how]!, ownersAlone);
  // One that was there before still has the permissions that it was made with.
  if (fs.fstatSync(descriptor).isFile()) fs.fchmodSync(descriptor, ownersAlone);
  return String(descriptor);
}

/// Answers the core's questions about files; nothing for other questions.
export function answerAboutFiles(question: string, fields: Uint8Array[]): readonly Field[] | undefined {
  const file = () => textOf(fields[0]);
  switch (question) {
    case "read":
      return doneWithFile(file(), () => [readAll(file())]);
    case "replace":
      return doneWithFile(file(), () => replace(file(), bytesOf(fields[1])));
    case "open":
      return doneWithFile(file(), () => [open(file(), textOf(fields[1]))]);
    case "append":
      return done(() => writeAll(Number(file()), bytesOf(fields[1])));
    case "flush":
      return done(() => fs.fsyncSync(Number(file())));
    case "close":
      return done(() => fs.closeSync(Number(file())));
    case "isFolder":
      return done(() => [statOf(file())?.isDirectory() ? "1" : "0"]);
    case "makeFolder":
      return done(() => fs.mkdirSync(file()));
    case "folders":
      return done(() => namesIn(file(), "", (stats) => stats.isDirectory()));
    case "files":
      return done(() => namesIn(file(), textOf(fields[1]), (stats) => stats.isFile()));
    default:
      return undefined;
  }
}
