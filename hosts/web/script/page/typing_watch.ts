// Which field is being typed in: there Ctrl+Z and Ctrl+Y are the field's own.

export class TypingWatch {
  private field: HTMLInputElement | undefined;
  private before = "";
  private lastWasReturn = false;

  constructor(root: ShadowRoot) {
    // What a script types the browser doesn't take back.
    root.addEventListener("beforeinput", (event) => (event.isTrusted ? this.begin(event.target) : this.forget()));
    root.addEventListener("input", (event) => {
      this.lastWasReturn = (event as InputEvent).inputType?.startsWith("history") ?? false;
    });
    root.addEventListener("focusout", () => this.forget());
  }

  /// Whether the key takes back or brings back what was typed.
  ownsKey(event: KeyboardEvent): boolean {
    if (this.field === undefined || event.target !== this.field) return false;
    const takesBack = event.code === "KeyZ" && !event.shiftKey;
    return takesBack ? this.field.value !== this.before : this.lastWasReturn;
  }

  forget(): void {
    this.field = undefined;
    this.lastWasReturn = false;
  }

  private begin(target: EventTarget | null): void {
    if (!(target instanceof HTMLInputElement) || target === this.field) return;
    this.field = target;
    this.before = target.value;
  }
}
