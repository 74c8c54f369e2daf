// Over the page while work lasts that the user can stop: how far it is, and the button for it.

import * as words from "#words";
import { holdOpen, make, plainWords } from "./dom.ts";
import type { Work } from "./facts.ts";

export class WorkBox {
  private readonly text = make("p", { role: "status" });
  private readonly element: HTMLDialogElement;

  constructor(private readonly root: ShadowRoot, stop: () => void) {
    const button = make("button", { type: "button", "data-answer": "stop" }, [plainWords(words.stop)]);
    button.addEventListener("click", stop);
    this.element = make("dialog", { class: "box", lang: "ru", "aria-label": words.boxTitle }, [
      this.text, make("div", { class: "beside buttons" }, [button]),
    ]);
    holdOpen(this.element, stop);
  }

  get isShown(): boolean {
    return this.element.isConnected;
  }

  show(work: Work): void {
    if (!work.mayStop) return;
    this.text.textContent = work.what;
    if (this.isShown) return;
    this.root.append(this.element);
    this.element.showModal();
  }

  hide(): void {
    this.element.close();
    this.element.remove();
  }
}
