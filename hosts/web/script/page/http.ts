// A request of the page: the browser adds the cookie and headers of its own.

import { textOf, type Field } from "../fields.ts";
import { failed, good } from "../errors.ts";
import { replyText } from "../reply_text.ts";

/// The fields: method, address, body, and then headers. A browser sends none of these by itself but
/// the cookie, which it lets nobody set.
export async function exchange(fields: Uint8Array[]): Promise<readonly Field[]> {
  const [method, address, body] = fields;
  let response: Response;
  try {
    // A body without a type gets no header for it.
    response = await fetch(textOf(address), {
      method: textOf(method), body: new Blob([body!.slice()]), redirect: "manual", cache: "no-store",
    });
  } catch {
    // Browsers don't say how far the request came: only without any network it surely didn't arrive.
    return failed(navigator.onLine ? "downloadFailed" : "hostNotFound");
  }
  try {
    const bytes = new Uint8Array(await response.arrayBuffer());
    return [good, replyText(bytes, response.headers.get("content-type") ?? "")];
  } catch {
    return failed("downloadFailed");
  }
}
