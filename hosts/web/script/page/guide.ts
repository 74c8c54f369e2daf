// The user guide over the page, at the chapter of where the user is. It is fetched when it is first asked for.

import * as words from "#words";
import { holdOpen, make } from "./dom.ts";

const address = new URL("guide/guide.html", import.meta.url);
const chapters = "h2";

async function fetchText(): Promise<Element[]> {
  const response = await fetch(address);
  if (!response.ok) throw new Error(`${address}: ${response.status}`);
  const { body } = new DOMParser().parseFromString(await response.text(), "text/html");
  for (const picture of body.querySelectorAll("img")) {
    picture.loading = "lazy";
    picture.src = new URL(picture.getAttribute("src")!, address).href;
  }
  // The dialog has its title.
  body.querySelector("h1")?.remove();
  return [...body.children];
}

export class Guide {
  private dialog: HTMLDialogElement | undefined;
  private before: HTMLElement | null = null;

  constructor(private readonly root: ShadowRoot, private readonly closed: () => void) {}

  get isOpen(): boolean {
    return this.dialog !== undefined;
  }

  async open(chapter: string): Promise<void> {
    if (this.isOpen) return;
    const contents = make("nav", { "aria-label": words.guideContents });
    const text = make("section", { tabindex: 0, "aria-label": words.guideTitle });
    const closer = make("button", { type: "button", class: "closer", "aria-label": words.closeDialog }, ["×"]);
    const dialog = make("dialog", { class: "guide", lang: "ru", "aria-labelledby": "guide-title" }, [
      make("div", { class: "title" }, [make("h2", { id: "guide-title" }, [words.guideTitle]), closer]),
      make("div", { class: "columns" }, [contents, text]),
    ]);
    closer.addEventListener("click", () => this.close());
    holdOpen(dialog, () => this.close());
    const before = this.root.activeElement as HTMLElement | null;
    this.root.append(dialog);
    dialog.showModal();
    this.dialog = dialog;
    this.before = before;
    text.focus();
    text.append(...(await fetchText().catch(() => [make("p", {}, [words.noGuide])])));
    contents.append(...[...text.querySelectorAll<HTMLElement>(chapters)].map((heading) => {
      const button = make("button", { type: "button" }, [heading.textContent]);
      // A screen reader reads on from there.
      heading.tabIndex = -1;
      const show = () => {
        heading.scrollIntoView();
        heading.focus({ preventScroll: true });
      };
      button.addEventListener("click", show);
      if (heading.textContent === chapter) show();
      return button;
    }));
  }

  close(): void {
    if (this.dialog === undefined) return;
    this.dialog.remove();
    this.dialog = undefined;
    this.before?.focus();
    this.before = null;
    this.closed();
  }
}
