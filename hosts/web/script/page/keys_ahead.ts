// Keys that come before the core has moved the focus on belong where it will be: a scanner's next
// field, or that of one who types fast. They wait, and are pressed there.

function isCharacter(event: KeyboardEvent): boolean {
  return [...event.key].length === 1;
}

function mayWait(event: KeyboardEvent): boolean {
  const isPlain = !event.ctrlKey && !event.altKey && !event.metaKey && !event.isComposing;
  return isPlain && (isCharacter(event) || event.key === "Tab" || event.key === "Enter");
}

/// As the browser would.
function insert(field: HTMLInputElement, character: string): void {
  const start = field.selectionStart;
  const end = field.selectionEnd;
  if (field.readOnly || field.disabled || start === null || end === null) return;
  const isFull = field.maxLength >= 0 && field.value.length - (end - start) >= field.maxLength;
  const told = { bubbles: true, composed: true, data: character, inputType: "insertText" };
  if (isFull || !field.dispatchEvent(new InputEvent("beforeinput", { ...told, cancelable: true }))) return;
  field.setRangeText(character, start, end, "end");
  field.dispatchEvent(new InputEvent("input", told));
}

export class KeysAhead {
  private readonly keys: KeyboardEvent[] = [];
  private moves = 0;
  private repeats = false;

  /// `moved`: ends when the core has done all that it was told before.
  constructor(private readonly root: ShadowRoot, private readonly moved: () => Promise<unknown>) {
    root.addEventListener("keydown", (event) => this.take(event as KeyboardEvent), { capture: true });
  }

  /// The core has been told what may move the focus.
  async wait(): Promise<void> {
    ++this.moves;
    await this.moved();
    --this.moves;
    while (this.moves === 0 && this.keys.length > 0) this.repeat(this.keys.shift()!);
  }

  /// They have lost their place.
  forget(): void {
    this.keys.length = 0;
  }

  private take(event: KeyboardEvent): void {
    if (this.moves === 0 || this.repeats || !mayWait(event)) return;
    event.preventDefault();
    event.stopImmediatePropagation();
    this.keys.push(event);
  }

  private repeat(event: KeyboardEvent): void {
    const target = this.root.activeElement;
    const { key, code, keyCode, shiftKey } = event;
    this.repeats = true;
    const isFree = target?.dispatchEvent(new KeyboardEvent("keydown", {
      key, code, keyCode, shiftKey, bubbles: true, composed: true, cancelable: true,
    }));
    this.repeats = false;
    if (isFree && isCharacter(event) && target instanceof HTMLInputElement) insert(target, key);
  }
}
