// Keys that come before the core has moved the focus on belong where it will be: a scanner's next
// field, or that of one who types fast. They wait, and are pressed there.

const others = new Set([
  "Tab", "Enter", "Escape", "Backspace", "Delete", "Insert", "ArrowUp", "ArrowDown", "ArrowLeft", "ArrowRight", "Home",
  "End", "PageUp", "PageDown",
]);

function isCharacter(event: KeyboardEvent): boolean {
  return [...event.key].length === 1;
}

function mayWait(event: KeyboardEvent): boolean {
  const isPlain = !event.ctrlKey && !event.altKey && !event.metaKey && !event.isComposing;
  return isPlain && (isCharacter(event) || others.has(event.key));
}

/// As the browser would: puts the text in place of these characters.
function edit(field: HTMLInputElement, start: number, end: number, text: string, inputType: string): void {
  const told = { bubbles: true, composed: true, data: text === "" ? null : text, inputType };
  if (!field.dispatchEvent(new InputEvent("beforeinput", { ...told, cancelable: true }))) return;
  field.setRangeText(text, start, end, "end");
  field.dispatchEvent(new InputEvent("input", told));
}

function type(field: HTMLInputElement, event: KeyboardEvent): void {
  const { selectionStart: start, selectionEnd: end, value, maxLength } = field;
  if (field.readOnly || field.disabled || start === null || end === null) return;
  const isMarked = start < end;
  if (event.key === "Backspace") {
    if (end > 0) edit(field, isMarked ? start : start - 1, end, "", "deleteContentBackward");
  } else if (event.key === "Delete") {
    if (start < value.length) edit(field, start, isMarked ? end : end + 1, "", "deleteContentForward");
  } else if (isCharacter(event) && (maxLength < 0 || value.length - (end - start) < maxLength)) {
    edit(field, start, end, event.key, "insertText");
  }
}

/// What the browser does with a key that nobody has taken.
function useKey(target: Element, event: KeyboardEvent): void {
  const presses = event.key === "Enter" || event.key === " ";
  if (target instanceof HTMLButtonElement) {
    if (presses) target.click();
  } else if (target instanceof HTMLInputElement && target.type === "checkbox") {
    if (event.key === " ") target.click();
  } else if (target instanceof HTMLInputElement) {
    type(target, event);
  }
}

export class KeysAhead {
  private readonly keys: KeyboardEvent[] = [];
  private moves = 0;
  private repeats = false;

  /// `moved`: ends when the core has done all that it was told before. `works`: whether it does what
  /// lasts, and can't answer.
  constructor(private readonly root: ShadowRoot, private readonly moved: () => Promise<unknown>, private readonly works: () => boolean) {
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
    if (this.moves === 0 || this.repeats || this.works() || !mayWait(event)) return;
    event.preventDefault();
    event.stopImmediatePropagation();
    this.keys.push(event);
  }

  private repeat(event: KeyboardEvent): void {
    const target = this.root.activeElement;
    const { key, code, keyCode, shiftKey } = event;
    this.repeats = true;
    const isFree = target !== null && target.dispatchEvent(new KeyboardEvent("keydown", {
      key, code, keyCode, shiftKey, bubbles: true, composed: true, cancelable: true,
    }));
    this.repeats = false;
    if (isFree && target !== null) useKey(target, event);
  }
}
