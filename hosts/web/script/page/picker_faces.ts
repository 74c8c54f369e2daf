// Dates and times: typed in the locale's form, or picked.

import { readTime, type DateForm } from "./date_form.ts";
import { make } from "./dom.ts";
import type { Host } from "./face.ts";
import type { ControlFacts } from "./facts.ts";
import { InputFace } from "./simple_faces.ts";

/// What is typed reaches the core as soon as it is a whole value, and is written in its usual form when
/// the field is left.
abstract class PickerFace extends InputFace {
  protected isTyping = false;

  constructor(name: string, host: Host, words?: string) {
    super(name, host, "text", words);
    this.input.inputMode = "numeric";
    this.input.addEventListener("keydown", (event) => {
      if (event.key === "Tab" || event.key === "Enter") this.finish();
    });
    this.input.addEventListener("blur", () => this.finish());
  }

  protected abstract read(text: string): string | undefined;

  /// What counts as a value only when no more is typed.
  protected readLeft(_text: string): string | undefined {
    return undefined;
  }
  /// The name of the user's act.
  protected abstract readonly deed: string;

  protected override line() {
    this.isTyping = true;
    const text = this.input.value.trim();
    const value = this.read(text);
    if (value !== undefined) return { do: this.deed, value };
    return text === "" && this.mayBeEmpty() ? { do: this.deed, value: null } : undefined;
  }

  /// Nothing more is typed. The act comes before that of the key or of the next field.
  override finish(): void {
    if (!this.isTyping) return;
    this.isTyping = false;
    const text = this.input.value.trim();
    const value = this.read(text) === undefined ? this.readLeft(text) : undefined;
    if (value === undefined) this.showFacts({});
    else void this.pass({ do: this.deed, value });
  }

  protected mayBeEmpty(): boolean {
    return true;
  }

  protected override keepsText(): boolean {
    return this.isTyping;
  }
}

export class DateFace extends PickerFace {
  protected override readonly deed = "date";
  private readonly calendar: HTMLInputElement;

  constructor(name: string, host: Host, private readonly form: DateForm, words?: string) {
    super(name, host, words);
    this.calendar = make("input", { type: "date", tabindex: -1, "aria-hidden": "true" });
    const opener = make("button", { type: "button", class: "opener", tabindex: -1, "aria-hidden": "true" }, ["▦"]);
    this.element.classList.add("dated");
    this.element.append(this.calendar, opener);
    opener.addEventListener("mousedown", (event) => event.preventDefault());
    opener.addEventListener("click", () => this.pick());
    this.input.addEventListener("keydown", (event) => {
      if (!event.altKey || event.key !== "ArrowDown") return;
      event.preventDefault();
      this.pick();
    });
    this.calendar.addEventListener("change", () => {
      this.isTyping = false;
      if (this.calendar.value !== "") void this.act({ do: this.deed, value: this.calendar.value });
    });
  }

  protected override read(text: string): string | undefined {
    return this.form.read(text);
  }

  protected override readLeft(text: string): string | undefined {
    return this.form.readShort(text);
  }

  protected override value(): string {
    return this.form.write(this.facts.date ?? "");
  }

  protected override mayBeEmpty(): boolean {
    return this.facts.allowsNone !== false;
  }

  protected override showFacts(changes: ControlFacts): void {
    super.showFacts(changes);
    this.calendar.value = this.facts.date ?? "";
    this.calendar.min = String(this.facts.min ?? "");
    this.calendar.max = String(this.facts.max ?? "");
    this.calendar.disabled = this.input.disabled;
    this.input.required = !this.mayBeEmpty();
  }

  private pick(): void {
    if (!this.calendar.disabled) this.calendar.showPicker();
  }
}

export class TimeFace extends PickerFace {
  protected override readonly deed = "time";

  protected override read(text: string): string | undefined {
    return readTime(text);
  }

  protected override value(): string {
    return (this.facts.time ?? "").slice(0, 5);
  }
}
