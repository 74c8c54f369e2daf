// Sheets of paper, which the core draws as SVG: shown, and printed by the browser.

import { make } from "./dom.ts";

/// As a part of that document. What the core draws is attributes and texts, no style and no script.
export function drawn(svg: string, of: Document): SVGSVGElement {
  const parsed = new DOMParser().parseFromString(svg, "image/svg+xml").documentElement;
  return of.importNode(parsed, true) as unknown as SVGSVGElement;
}

/// A page of paper for each size, as large as the sheet and without a margin: what is fitted to
/// other paper has bars of another width.
function pageRules(sizes: Map<string, [string, string]>): string {
  const rules = [
    "html, body { margin: 0; background: white; }",
    ".sheet { break-after: page; overflow: hidden; }",
    ".sheet:last-child { break-after: auto; }",
    "svg { display: block; }",
  ];
  for (const [name, [width, height]] of sizes) {
    rules.push(`@page ${name} { size: ${width} ${height}; margin: 0; }`);
    rules.push(`.${name} { page: ${name}; width: ${width}; height: ${height}; }`);
  }
  // For browsers that know no named pages.
  const [first] = sizes.values();
  if (first !== undefined) rules.unshift(`@page { size: ${first.join(" ")}; margin: 0; }`);
  return rules.join("\n");
}

/// Fills the empty document with the sheets, a page each.
function fill(page: Document, sheets: string[]): void {
  const sizes = new Map<string, [string, string]>();
  for (const sheet of sheets) {
    const svg = drawn(sheet, page);
    const size: [string, string] = [svg.getAttribute("width")!, svg.getAttribute("height")!];
    const name = `paper-${size.join("-")}`.replaceAll(".", "_");
    sizes.set(name, size);
    const holder = page.createElement("div");
    holder.className = `sheet ${name}`;
    holder.append(svg);
    page.body.append(holder);
  }
  const rules = new page.defaultView!.CSSStyleSheet();
  rules.replaceSync(pageRules(sizes));
  page.adoptedStyleSheets = [rules];
}

/// `ended` is called when the browser's dialog has been left: Firefox says that printing is over while its
/// dialog is open, and goes on only afterwards; other browsers may go on before they say so.
function print(page: Window, ended: () => void): void {
  let [isOver, goesOn] = [false, false];
  const endIfBoth = () => {
    if (isOver && goesOn) ended();
  };
  page.addEventListener("afterprint", () => {
    isOver = true;
    endIfBoth();
  }, { once: true });
  page.print();
  goesOn = true;
  endIfBoth();
}

/// Lets the user print the sheets, each on paper of its size. They stand in a document of their own, so
/// that nothing of the page around is printed with them.
export function printSheets(root: ShadowRoot, title: string, sheets: string[], ended: () => void): void {
  root.querySelector("iframe.printed")?.remove();
  const frame = make("iframe", { class: "printed", title, tabindex: -1, "aria-hidden": "true" });
  frame.addEventListener("load", () => {
    const page = frame.contentDocument!;
    page.title = title;
    fill(page, sheets);
    print(frame.contentWindow!, ended);
  }, { once: true });
  root.append(frame);
}
