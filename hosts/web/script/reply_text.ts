// A reply's text: by its byte order mark, else by the charset of its content type where that is
// known, else as UTF-8; bytes that are no text become U+FFFD.

import type { Field } from "./fields.ts";

const marks: [number[], string][] = [
  [[0xef, 0xbb, 0xbf], "utf-8"],
  [[0xff, 0xfe], "utf-16le"],
  [[0xfe, 0xff], "utf-16be"],
];

function charsetOf(contentType: string): string {
  for (const parameter of contentType.split(";")) {
    const value = /^\s*charset=\s*(.*?)\s*$/i.exec(parameter)?.[1];
    if (value !== undefined) return value.replace(/^"(.*)"$/, "$1");
  }
  return "";
}

function decoderFor(charset: string): TextDecoder {
  try {
    return new TextDecoder(charset || "utf-8", { ignoreBOM: true });
  } catch {
    return new TextDecoder("utf-8", { ignoreBOM: true });
  }
}

export function replyText(bytes: Uint8Array, contentType: string): Field {
  for (const [mark, charset] of marks) {
    if (mark.every((byte, at) => bytes[at] === byte)) return decoderFor(charset).decode(bytes.subarray(mark.length));
  }
  return decoderFor(charsetOf(contentType)).decode(bytes);
}
