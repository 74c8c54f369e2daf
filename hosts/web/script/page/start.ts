// What the element's attributes and its page say at the start.

import type { Start } from "./messages.ts";

const properties: Record<string, string> = {
  online: "OnLine", "debug-level": "DebugLevel", "partner-name": "PartnerName", "partner-iln": "PartnerILN",
  "partner-url": "PartnerURL",
};
const settingPrefix = "awizo/";
const defaultFolder = "/VIRD";

function keptSettings(): [string, string][] {
  try {
    return Object.entries(localStorage)
      .filter(([name]) => name.startsWith(settingPrefix))
      .map(([name, value]) => [name.slice(settingPrefix.length), String(value)]);
  } catch {
    return [];
  }
}

/// Beside the folder. A name that begins so is in no list of folders.
function beside(folder: string, what: string): string {
  return folder.replace(/([^/]*)\/*$/, `.$1.${what}`);
}

/// The locale's name as the core takes it.
export function localeOf(element: HTMLElement): string {
  return (element.closest("[lang]")?.getAttribute("lang") || "ru-RU").replace("-", "_");
}

/// Without one the core shows its start page.
function namesSession(element: HTMLElement): boolean {
  return element.hasAttribute("online") || element.hasAttribute("partner-iln");
}

export function startOf(element: HTMLElement): Start {
  const folder = element.getAttribute("folder") ?? defaultFolder;
  const words: string[] = [];
  for (const [attribute, property] of Object.entries(properties)) {
    const value = element.getAttribute(attribute);
    if (value !== null) words.push("--property", `${property}=${value}`);
  }
  if (namesSession(element)) {
    // A "/" in the query would move the base of the service's addresses.
    words.push("--page-url", location.origin + location.pathname, "--cookie", document.cookie);
  }
  const locale = localeOf(element);
  words.push("--locale", locale);
  // What is kept is the browser's, in no file: with the folder alone nothing would outlive the session.
  words.push("--offline-path", folder, "--settings", "");
  const now = element.getAttribute("now");
  if (now !== null) words.push("--now", now);
  const files: [string, string][] = [];
  const userInfo = element.getAttribute("user-info");
  if (userInfo !== null) files.push(["userinfo.xml", new URL(userInfo, document.baseURI).href]);
  return {
    arguments: words, locale, settings: keptSettings(), files, folder, given: beside(folder, "given"),
    records: beside(folder, "records"), numbers: beside(folder, "numbers"),
  };
}
