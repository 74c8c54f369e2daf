// Buttons that no form has. Tab goes the forms' own way and passes them by: F10 leads to them, the
// arrow keys along them, Escape back.

import { make } from "./dom.ts";

const row = "extras";
const enabled = "button:not(:disabled):not([role^=menuitem])";
const reachable = `.${row} :is(${enabled})`;
const steps: Record<string, number> = { ArrowLeft: -1, ArrowRight: 1 };

function lead(event: KeyboardEvent): void {
  const step = steps[event.key];
  if (step === undefined) return;
  const buttons = [...(event.currentTarget as Element).querySelectorAll<HTMLElement>(enabled)];
  const next = buttons.indexOf((event.target as Element).closest("button")!) + step;
  buttons.at(next % buttons.length)?.focus();
  event.preventDefault();
}

/// A row for them.
export function extraButtons(buttons: HTMLElement[] = []): HTMLElement {
  const words = "Ещё команды (F10)";
  const element = make("div", { class: row, role: "toolbar", "aria-label": words, title: words }, buttons);
  element.addEventListener("keydown", lead);
  return element;
}

export function isExtra(element: Element | null): boolean {
  return element !== null && element.closest(`.${row}`) !== null;
}

/// The first of those within.
export function firstExtra(within: Element): HTMLElement | null {
  return within.querySelector<HTMLElement>(reachable);
}
