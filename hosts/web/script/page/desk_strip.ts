// What stands over the main form: the steps that can be taken back or done again, and words on what
// was done last.

import * as words from "#words";
import { make, plainWords } from "./dom.ts";
import type { Steps } from "./facts.ts";

export type Step = keyof Steps;

const ownWords: Record<Step, string> = { takeBack: words.takeBack, doAgain: words.doAgain };
const keys: Record<Step, string> = { takeBack: "Control+Z", doAgain: "Control+Y" };
const none: Steps = { takeBack: null, doAgain: null };

export class DeskStrip {
  readonly element: HTMLElement;
  private readonly buttons: Record<Step, HTMLButtonElement>;
  private readonly told = make("output", { "aria-live": "polite" });

  constructor(private readonly go: (step: Step) => void) {
    this.buttons = { takeBack: this.button("takeBack"), doAgain: this.button("doAgain") };
    this.element = make("div", { class: "strip" }, [...Object.values(this.buttons), this.told]);
    this.clear();
  }

  showSteps(steps: Steps): void {
    for (const [step, button] of Object.entries(this.buttons) as [Step, HTMLButtonElement][]) {
      button.textContent = plainWords(steps[step] ?? ownWords[step]);
      button.disabled = steps[step] === null;
    }
  }

  tell(text: string): void {
    this.told.textContent = text;
  }

  clear(): void {
    this.showSteps(none);
    this.tell("");
  }

  private button(step: Step): HTMLButtonElement {
    const button = make("button", { type: "button", "data-step": step, "aria-keyshortcuts": keys[step] });
    // The focus moves by the model alone.
    button.addEventListener("mousedown", (event) => event.preventDefault());
    button.addEventListener("click", () => this.go(step));
    return button;
  }
}
