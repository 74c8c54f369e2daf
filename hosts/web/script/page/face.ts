// A control in the page. A face shows what the core says and passes on what the user does; it
// decides nothing.

import type { Line } from "./core_client.ts";
import { focusable, make } from "./dom.ts";
import type { ControlFacts } from "./facts.ts";
import { ScannedInput } from "./scanned_input.ts";

export interface Host {
  /// Passes on what the user does to a control. The promise ends when the core has taken it.
  act(on: string, line: Line): Promise<void>;
}

export abstract class Face {
  protected facts: ControlFacts = {};
  private note: HTMLElement | undefined;
  private noteButton: HTMLElement | undefined;
  private scannedInput: ScannedInput | undefined;

  constructor(readonly name: string, readonly element: HTMLElement, protected readonly host: Host) {
    element.dataset["name"] = name;
  }

  show(changes: ControlFacts): void {
    this.facts = { ...this.facts, ...changes };
    this.element.hidden = this.facts.visible === false || (this.facts.cover ?? null) !== null;
    if (this.note !== undefined) this.note.hidden = this.element.hidden;
    this.showFacts(changes);
  }

  /// Words beside it, in addition to what the core says of the control, and a button for what they ask.
  showNote(text: string, button?: HTMLElement): void {
    if (this.note === undefined) {
      this.note = make("output", { class: "note", id: `note-${this.name}` });
      // Not within: it would become a part of the field's name.
      this.element.after(this.note);
      focusable(this.element)?.setAttribute("aria-describedby", this.note.id);
    }
    this.note.textContent = text;
    this.note.hidden = this.element.hidden;
    this.noteButton?.remove();
    this.noteButton = button;
    if (button !== undefined) this.note.after(button);
  }

  /// The core says what the field holds that the user types in.
  showTyped(text: string): void {
    this.scannedInput?.show(text);
  }

  /// From now on a scanner types into it.
  takeScans(): void {
    const input = this.element.querySelector("input");
    if (input !== null) this.scannedInput = new ScannedInput(input, (line) => this.act(line));
  }

  /// Nothing more is typed into it.
  finish(): void {}

  protected abstract showFacts(changes: ControlFacts): void;

  protected act(line: Line): Promise<void> {
    return this.host.act(this.name, line);
  }
}
