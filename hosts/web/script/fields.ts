// What core and JavaScript tell each other: lists of byte strings.

export type Field = string | Uint8Array;

const decoder = new TextDecoder("utf-8", { ignoreBOM: true });
const encoder = new TextEncoder();

export function textOf(field: Field | undefined): string {
  if (field === undefined) throw new RangeError("a field is missing");
  return typeof field === "string" ? field : decoder.decode(field);
}

export function bytesOf(field: Field | undefined): Uint8Array {
  if (field === undefined) throw new RangeError("a field is missing");
  return typeof field === "string" ? encoder.encode(field) : field;
}
