// What the element and the core's worker tell each other.

export interface Start {
  /// Those of awizo-headless.
  arguments: string[];
  /// What is kept for the core, by the names of its values.
  settings: [string, string][];
  /// Files that must be there: their paths, and the addresses that they come from.
  files: [string, string][];
  /// The local folder.
  folder: string;
  wasm: string;
}

export type ToWorker = { start: Start } | { line: string };

export type FromWorker =
  | { said: string }
  | { kept: [string, string] }
  | { complaint: string }
  | { ended: number }
  | { failed: string };
