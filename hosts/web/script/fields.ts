// What core and JavaScript tell each other: lists of byte strings, packed as the number of fields,
// then of each its length and its bytes.

export type Field = string | Uint8Array;
export type Bytes = Uint8Array<ArrayBuffer>;

const decoder = new TextDecoder("utf-8", { ignoreBOM: true });
const encoder = new TextEncoder();
const wordSize = 4;

export function textOf(field: Field | undefined): string {
  if (field === undefined) throw new RangeError("a field is missing");
  return typeof field === "string" ? field : decoder.decode(field);
}

export function bytesOf(field: Field | undefined): Uint8Array {
  if (field === undefined) throw new RangeError("a field is missing");
  return typeof field === "string" ? encoder.encode(field) : field;
}

export function pack(fields: readonly Field[]): Bytes {
  const all = fields.map(bytesOf);
  const packed = new Uint8Array(all.reduce((size, bytes) => size + wordSize + bytes.length, wordSize));
  const view = new DataView(packed.buffer);
  view.setUint32(0, all.length, true);
  let at = wordSize;
  for (const bytes of all) {
    view.setUint32(at, bytes.length, true);
    packed.set(bytes, at + wordSize);
    at += wordSize + bytes.length;
  }
  return packed;
}

/// The fields share the packed bytes' memory.
export function unpack(packed: Uint8Array): Uint8Array[] {
  const view = new DataView(packed.buffer, packed.byteOffset, packed.byteLength);
  const fields: Uint8Array[] = [];
  let at = wordSize;
  for (let count = view.getUint32(0, true); count > 0; --count) {
    const size = view.getUint32(at, true);
    at += wordSize;
    fields.push(packed.subarray(at, at + size));
    at += size;
  }
  return fields;
}
