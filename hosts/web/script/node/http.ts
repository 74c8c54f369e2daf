// One request over the network, without any header that isn't asked for.

import http from "node:http";
import https from "node:https";

import { textOf, type Field } from "../fields.ts";
import { failed, good, type RunTimeErrorName } from "../errors.ts";
import { replyText } from "../reply_text.ts";

const unreachable = new Set(["ECONNREFUSED", "ENOTFOUND", "EAI_AGAIN", "EHOSTUNREACH", "ENETUNREACH", "ETIMEDOUT"]);
const notTrusted = /CERT|SELF_SIGNED|ISSUER|ERR_TLS|ALTNAME/;
const connectMilliseconds = 60_000;

function errorName(error: NodeJS.ErrnoException): RunTimeErrorName {
  if (unreachable.has(error.code ?? "")) return "hostNotFound";
  return notTrusted.test(error.code ?? "") ? "badCertificate" : "downloadFailed";
}

function addressOf(text: string): URL | undefined {
  const url = URL.parse(text);
  return url !== null && /^https?:$/.test(url.protocol) ? url : undefined;
}

/// The fields: method, address, body, and then headers, each a name and a value.
export function exchange(fields: Uint8Array[]): Promise<readonly Field[]> {
  const [method, address, body, ...headers] = fields;
  const url = addressOf(textOf(address));
  if (url === undefined) return Promise.resolve(failed("hostNotFound"));
  return new Promise((resolve) => {
    const raw = [...headers.map(textOf), "Host", url.host, "Content-Length", String(body!.length)];
    const options = {
      hostname: url.hostname.replace(/^\[(.*)\]$/, "$1"), port: url.port, path: url.pathname + url.search,
      method: textOf(method), headers: raw, agent: false, insecureHTTPParser: true,
    } as const;
    const cutOff = () => resolve(failed("downloadFailed"));
    const request = (url.protocol === "https:" ? https : http).request(options, (reply) => {
      const parts: Buffer[] = [];
      reply.on("data", (part: Buffer) => parts.push(part));
      reply.on("error", cutOff);
      reply.on("end", () => {
        if (!reply.complete) return cutOff();
        resolve([good, replyText(Buffer.concat(parts), reply.headers["content-type"] ?? "")]);
      });
    });
    const tooLong = setTimeout(() => request.destroy(Object.assign(new Error(), { code: "ETIMEDOUT" })), connectMilliseconds);
    request.on("socket", (socket) => socket.once("connect", () => clearTimeout(tooLong)));
    request.on("close", () => clearTimeout(tooLong));
    request.on("error", (error: NodeJS.ErrnoException) => resolve(failed(errorName(error))));
    request.end(body);
  });
}
