// The run-time errors that the core raises where its surroundings fail.

export const runTimeErrors = {
  outOfMemory: 7,
  badFileName: 52,
  fileNotFound: 53,
  diskFull: 61,
  deviceUnavailable: 68,
  permissionDenied: 70,
  diskNotReady: 71,
  pathFileAccess: 75,
  pathNotFound: 76,
  hostNotFound: -2146697211,
  downloadFailed: -2146697208,
  badCertificate: -2146697191,
} as const;

export type RunTimeErrorName = keyof typeof runTimeErrors;

/// The answer to a question that has failed.
export function failed(name: RunTimeErrorName): string[] {
  return [String(runTimeErrors[name])];
}

/// What an answer that didn't fail begins with.
export const good = "0";
