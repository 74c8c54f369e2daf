// A field into which numbers are scanned: what nothing else would be in the field beside goes to the core,
// which cuts off what a scanner types before a number and says what the field holds then.

import type { Line } from "./core_client.ts";

/// Shift and the like are held while something else is typed; some scanners type a key of functions.
const pass = /^(Shift|Control|Alt|AltGraph|Meta|CapsLock|NumLock|ScrollLock|F\d+)$/;

/// The separator of a symbol's texts comes with Ctrl held.
function isSeparator(event: KeyboardEvent): boolean {
  return event.ctrlKey && !event.altKey && event.code === "BracketRight";
}

export class ScannedInput {
  /// Typed and not answered by the core: until then the field isn't as it will be.
  private unanswered = 0;
  private mayHold = false;

  constructor(private readonly input: HTMLInputElement, private readonly act: (line: Line) => Promise<void>) {
    input.addEventListener("keydown", (event) => this.takeKey(event));
    input.addEventListener("beforeinput", (event) => this.takeInput(event));
    input.addEventListener("paste", (event) => this.takePaste(event));
    input.addEventListener("mousedown", () => this.giveBack());
  }

  /// The core says what the field holds.
  show(text: string): void {
    this.input.value = text;
    this.input.setSelectionRange(text.length, text.length);
  }

  /// Whether what is typed next is all that the field will hold.
  private get isBegun(): boolean {
    const { value, selectionStart, selectionEnd } = this.input;
    return selectionStart === 0 && selectionEnd === value.length;
  }

  private takeKey(event: KeyboardEvent): void {
    if (isSeparator(event)) {
      event.preventDefault();
      event.stopPropagation();
      if (this.isBegun || this.unanswered > 0) void this.send("\x1d");
    } else if (event.key.length > 1 && !pass.test(event.key)) {
      this.giveBack();
    }
  }

  private takeInput(event: InputEvent): void {
    const isTyped = event.inputType === "insertText" && !event.isComposing && event.data !== null;
    if (!isTyped || !(this.isBegun || this.unanswered > 0)) return;
    event.preventDefault();
    void this.send(event.data!);
  }

  private takePaste(event: ClipboardEvent): void {
    const text = event.clipboardData?.getData("text/plain") ?? "";
    if (text === "" || !this.isBegun || this.input.disabled || this.input.readOnly) return;
    event.preventDefault();
    void this.say({ text, isWhole: true });
  }

  private send(text: string): Promise<void> {
    this.mayHold = true;
    return this.say({ text, begins: this.unanswered === 0 });
  }

  /// No more of what may be a scanner's follows: what is typed next is the field's own.
  private giveBack(): void {
    if (this.mayHold) void this.act({ do: "scan", text: "" });
    this.mayHold = false;
  }

  private async say(line: Line): Promise<void> {
    ++this.unanswered;
    await this.act({ do: "scan", ...line });
    --this.unanswered;
  }
}
