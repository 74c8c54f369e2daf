// A reply's text: by its byte order mark, else by the charset of its content type where that is
// known, else as UTF-8; bytes that are no text become U+FFFD.

import type { Field } from "./fields.ts";

/// Of a long text, so that it is never in memory a second time.
const pieceSize = 1 << 16;
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

/// Whether decoding the bytes and encoding them again would change nothing.
function isUtf8(bytes: Uint8Array): boolean {
  const decoder = new TextDecoder("utf-8", { ignoreBOM: true, fatal: true });
  try {
    for (let at = 0; at < bytes.length; at += pieceSize) decoder.decode(bytes.subarray(at, at + pieceSize), { stream: true });
    decoder.decode();
    return true;
  } catch {
    return false;
  }
}

function decoded(bytes: Uint8Array, charset: string): Field {
  const decoder = decoderFor(charset);
  return decoder.encoding === "utf-8" && isUtf8(bytes) ? bytes : decoder.decode(bytes);
}

export function replyText(bytes: Uint8Array, contentType: string): Field {
  for (const [mark, charset] of marks) {
    if (mark.every((byte, at) => bytes[at] === byte)) return decoded(bytes.subarray(mark.length), charset);
  }
  return decoded(bytes, charsetOf(contentType));
}
