// What several tabs read and change in turn: who has the turn holds the lock of the folder's name.

import { textOf, type Field } from "../fields.ts";
import { good } from "../errors.ts";
import { done, makeFolders } from "./opfs.ts";

const held = new Map<string, () => void>();

async function take(folder: string): Promise<void> {
  await makeFolders(folder);
  await new Promise<void>((resolve, reject) => {
    const keep = () => {
      resolve();
      return new Promise<void>((release) => held.set(folder, release));
    };
    navigator.locks.request(`awizo ${folder}`, keep).catch(reject);
  });
}

/// Answers the core's question for a turn; nothing for other questions.
export function answerAboutTurns(question: string, fields: Uint8Array[]): Promise<readonly Field[]> | undefined {
  return question === "takeTurn" ? done(() => take(textOf(fields[0]))) : undefined;
}

export function answerAboutTurnsEnd(question: string, fields: Uint8Array[]): readonly Field[] | undefined {
  if (question !== "endTurn") return undefined;
  const folder = textOf(fields[0]);
  held.get(folder)?.();
  held.delete(folder);
  return [good];
}
