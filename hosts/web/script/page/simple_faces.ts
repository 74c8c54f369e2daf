// Faces of all kinds but tables and drop-down lists.

import { make, plainWords } from "./dom.ts";
import type { Line } from "./core_client.ts";
import { Face, type Host } from "./face.ts";
import type { ControlFacts } from "./facts.ts";

export class LabelFace extends Face {
  constructor(name: string, host: Host, private readonly withHeading = true) {
    super(name, make("output", { class: "value" }), host);
  }

  protected override showFacts(): void {
    const text = this.facts.caption ?? "";
    this.element.textContent = this.withHeading && this.facts.heading ? `${this.facts.heading} ${text}` : text;
  }
}

export class ButtonFace extends Face {
  private readonly button: HTMLButtonElement;

  constructor(name: string, host: Host, private readonly words = "", tip?: string) {
    const button = make("button", { type: "button", title: tip || undefined });
    super(name, button, host);
    this.button = button;
    // The focus moves by the model alone.
    button.addEventListener("mousedown", (event) => event.preventDefault());
    button.addEventListener("click", () => void this.act({ do: "click" }));
  }

  protected override showFacts(): void {
    this.button.textContent = this.words || plainWords(this.facts.caption ?? "");
    this.button.disabled = this.facts.enabled === false;
  }
}

/// A label over a field.
function captioned(input: HTMLElement, words: HTMLElement): HTMLLabelElement {
  return make("label", { class: "field" }, [words, input]);
}

export abstract class InputFace extends Face {
  protected readonly input: HTMLInputElement;
  private readonly words: HTMLElement;
  /// What was typed and the core hasn't taken yet: what it says of the text is old.
  private typing = 0;

  constructor(name: string, host: Host, type: string, words?: string) {
    const input = make("input", { type, autocomplete: "off", spellcheck: "false" });
    const caption = make("span", { class: "caption" }, words === undefined ? [] : [words]);
    super(name, captioned(input, caption), host);
    this.input = input;
    this.words = caption;
    this.givenWords = words;
    input.addEventListener("input", () => void this.passOn());
  }

  private readonly givenWords: string | undefined;

  /// What the user has done to it; nothing for what the core needn't hear.
  protected abstract line(): Record<string, unknown> | undefined;
  protected abstract value(): string;

  protected override showFacts(_changes: ControlFacts): void {
    this.words.textContent = this.givenWords ?? plainWords(this.facts.caption ?? "");
    this.input.disabled = this.facts.enabled === false;
    if (this.typing === 0 && !this.keepsText() && this.input.value !== this.value()) this.input.value = this.value();
  }

  /// Whether the text stays as it was typed.
  protected keepsText(): boolean {
    return false;
  }

  private async passOn(): Promise<void> {
    const line = this.line();
    if (line !== undefined) await this.pass(line);
  }

  protected async pass(line: Line): Promise<void> {
    ++this.typing;
    await this.act(line);
    if (--this.typing === 0) this.showFacts({});
  }
}

export class TextFace extends InputFace {
  constructor(name: string, host: Host, words?: string) {
    super(name, host, "text", words);
  }

  protected override line() {
    return { do: "type", text: this.input.value };
  }

  protected override value(): string {
    return this.facts.text ?? "";
  }

  protected override showFacts(changes: ControlFacts): void {
    super.showFacts(changes);
    if (this.facts.limit) this.input.maxLength = this.facts.limit;
  }
}

export class SpinFace extends Face {
  constructor(name: string, host: Host) {
    const less = make("button", { type: "button", "aria-label": "меньше", tabindex: -1 }, ["−"]);
    const more = make("button", { type: "button", "aria-label": "больше", tabindex: -1 }, ["+"]);
    super(name, make("span", { class: "spin" }, [less, more]), host);
    less.addEventListener("click", () => void this.act({ do: "spin", by: -1 }));
    more.addEventListener("click", () => void this.act({ do: "spin", by: 1 }));
  }

  protected override showFacts(): void {}
}

/// Drives, folders and files: a list that is all there.
export class PlainListFace extends Face {
  private readonly select: HTMLSelectElement;
  private readonly caption: HTMLElement;

  constructor(name: string, host: Host, private readonly words: string, private readonly kind: "drive" | "folder" | "file") {
    const select = make("select", { size: kind === "drive" ? 1 : 8 });
    const caption = make("span", { class: "caption" });
    super(name, captioned(select, caption), host);
    this.select = select;
    this.caption = caption;
    select.addEventListener("change", () => void this.choose());
    select.addEventListener("dblclick", () => {
      if (kind === "file") void this.act({ do: "doubleClick" });
    });
  }

  protected override showFacts(): void {
    const rows = [...this.foldersAbove(), ...(this.facts.rows ?? [])];
    this.select.replaceChildren(...rows.map((row) => make("option", {}, [row])));
    this.select.selectedIndex = this.kind === "file" ? (this.facts.index ?? -1) : this.kind === "drive" ? 0 : -1;
    this.select.disabled = this.facts.enabled === false;
    this.caption.textContent = this.kind === "folder" ? `${this.words} ${this.facts.path ?? ""}` : this.words;
  }

  /// A folder list also leads up.
  private foldersAbove(): string[] {
    return this.kind === "folder" && /\\[^\\]/.test(this.facts.path ?? "") ? ["↑"] : [];
  }

  private async choose(): Promise<void> {
    const above = this.foldersAbove().length;
    const row = this.select.selectedIndex;
    if (row < 0) return;
    if (this.kind !== "folder") return this.act({ do: "choose", row });
    const path = this.facts.path ?? "";
    const value = row < above
      ? path.slice(0, Math.max(path.lastIndexOf("\\"), 2)) || "c:\\"
      : `${path.replace(/\\$/, "")}\\${this.facts.rows?.[row - above] ?? ""}`;
    await this.act({ do: "path", value: /^.:$/.test(value) ? `${value}\\` : value });
  }
}
