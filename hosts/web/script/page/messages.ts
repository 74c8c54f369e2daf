// What the element and the core's worker tell each other.

export interface Start {
  /// Those of awizo-headless.
  arguments: string[];
  locale: string;
  /// What is kept for the core, by the names of its values.
  settings: [string, string][];
  /// Files that the page gives into the local folder: their names, and the addresses that they come from.
  files: [string, string][];
  /// Where they are kept as the page gave them last.
  given: string;
  /// The local folder.
  folder: string;
  /// Where sessions are recorded.
  records: string;
  /// Where the firm's package numbers are.
  numbers: string;
}

/// The core's exit status where kept work couldn't be done again.
export const replayDiffers = 4;

/// `end`: there are no more lines.
export type ToWorker = { start: Start } | { module: WebAssembly.Module } | { line: string } | { end: true };

export type FromWorker =
  | { said: string }
  | { kept: [string, string] }
  | { complaint: string }
  | { ended: number }
  | { failed: string };
