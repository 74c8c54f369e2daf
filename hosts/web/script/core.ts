// The core: loaded, started, and connected with what answers its questions.

import { localSeconds } from "./clock.ts";
import { bytesOf, textOf, type Field } from "./fields.ts";

/// Answers the core.
export interface Surroundings {
  /// A question that may take time.
  ask(name: string, fields: Uint8Array[]): Promise<readonly Field[]>;
  /// A question that is answered at once; its fields are the core's memory, and only until then.
  askNow(name: string, fields: Uint8Array[]): readonly Field[];
}

export interface Core {
  /// From the core's start to its end; its exit status.
  run(): Promise<number>;
}

interface Exports {
  memory: WebAssembly.Memory;
  addField(answer: number, size: number): number;
  run(): number;
  _initialize(): void;
}

/// What is missing from WebAssembly's declarations.
interface Suspension {
  Suspending: new (ask: (at: number, count: number, to: number) => Promise<void>) => WebAssembly.ImportValue;
  promising(run: () => number): () => Promise<number>;
}

const success = 0;
const badFile = 8;
const notSupported = 52;
const complaints = 2;
/// Of a place in memory and a size.
const vectorSize = 8;

/// Whether this browser can suspend the core while it waits.
export function canSuspend(): boolean {
  return "Suspending" in WebAssembly && "promising" in WebAssembly;
}

export async function loadCore(module: WebAssembly.Module, surroundings: Surroundings): Promise<Core> {
  const suspension = WebAssembly as unknown as Suspension;
  let core: Exports;

  const bytes = (at: number, size: number) => new Uint8Array(core.memory.buffer, at, size);
  const view = () => new DataView(core.memory.buffer);
  const vector = (at: number) => bytes(view().getUint32(at, true), view().getUint32(at + 4, true));
  const question = (at: number, count: number): [string, Uint8Array[]] => {
    const [name, ...fields] = Array.from({ length: count }, (_, place) => vector(at + place * vectorSize));
    return [textOf(name), fields];
  };
  // While a question is answered that takes time the core's memory may grow, and then lies elsewhere.
  const copied = ([name, fields]: [string, Uint8Array[]]): [string, Uint8Array[]] =>
    [name, fields.map((field) => field.slice())];
  const answer = (to: number, fields: readonly Field[]): void => {
    for (const field of fields.map(bytesOf)) {
      const at = core.addField(to, field.length) >>> 0;
      bytes(at, field.length).set(field);
    }
  };

  // What the C++ library asks of a system: it only complains, and asks for nothing else.
  const system: Record<string, (...values: number[]) => number> = {
    fd_write(file, vectors, count, written) {
      let size = 0;
      for (let i = 0; i < count!; ++i) {
        const part = vector(vectors! + i * vectorSize);
        if (file === complaints) surroundings.askNow("complain", [part.slice()]);
        size += part.length;
      }
      view().setUint32(written!, size, true);
      return success;
    },
    environ_sizes_get(count, size) {
      view().setUint32(count!, 0, true);
      view().setUint32(size!, 0, true);
      return success;
    },
    environ_get: () => success,
    // There is no folder that the core begins with.
    fd_prestat_get: () => badFile,
    proc_exit(status) {
      throw new Error(`the core has ended with ${status}`);
    },
  };
  const systemOrNothing: WebAssembly.ModuleImports = {};
  for (const wanted of WebAssembly.Module.imports(module)) {
    if (wanted.module !== "wasi_snapshot_preview1") continue;
    systemOrNothing[wanted.name] = system[wanted.name] ?? (() => notSupported);
  }

  const instance = await WebAssembly.instantiate(module, {
    page: {
      ask: new suspension.Suspending(
        async (at, count, to) => answer(to, await surroundings.ask(...copied(question(at, count))))),
      localSeconds,
      askNow: (at: number, count: number, to: number) => answer(to, surroundings.askNow(...question(at, count))),
    },
    wasi_snapshot_preview1: systemOrNothing,
  });
  core = instance.exports as unknown as Exports;
  core._initialize();
  return { run: suspension.promising(core.run) };
}

/// Ranks as the core takes them: the numbers' own bytes.
export function rankBytes(ranks: Int32Array): Uint8Array {
  return bytesOf(new Uint8Array(ranks.buffer, ranks.byteOffset, ranks.byteLength));
}
