// A drop-down list: its text, and its rows below it while it is open. Only rows that are seen are in
// the page.

import { make, plainWords } from "./dom.ts";
import { Face, type Host } from "./face.ts";
import type { ControlFacts } from "./facts.ts";

const rowHeight = 28;
const rowsSeen = 10;
let lastNumber = 0;

export class ListFace extends Face {
  private readonly input: HTMLInputElement;
  private readonly words: HTMLElement;
  private readonly popup: HTMLElement;
  private readonly space: HTMLElement;
  private readonly rows = new Map<number, string>();
  private typing = 0;
  private readonly id = `list-${++lastNumber}`;

  constructor(name: string, host: Host, private readonly givenWords?: string) {
    const popup: HTMLElement = make("div", { class: "popup", role: "listbox", hidden: true });
    const input = make("input", {
      type: "text", role: "combobox", autocomplete: "off", spellcheck: "false", "aria-expanded": "false",
      "aria-haspopup": "listbox",
    });
    const opener = make("button", { type: "button", class: "opener", tabindex: -1, "aria-hidden": "true" }, ["▾"]);
    const words = make("span", { class: "caption" });
    super(name, make("div", { class: "field list" }, [
      make("label", {}, [words, input]), opener, popup,
    ]), host);
    this.input = input;
    this.words = words;
    this.popup = popup;
    this.space = make("div", { class: "space" });
    popup.id = this.id;
    popup.append(this.space);
    input.setAttribute("aria-controls", this.id);
    input.addEventListener("input", () => void this.type());
    input.addEventListener("blur", () => this.open(false));
    input.addEventListener("keydown", (event) => this.pressKey(event));
    opener.addEventListener("mousedown", (event) => {
      event.preventDefault();
      if (!this.input.disabled) this.toggle();
    });
    popup.addEventListener("mousedown", (event) => {
      event.preventDefault();
      const option = (event.target as Element).closest<HTMLElement>("[role=option]");
      if (option !== null) this.choose(Number(option.dataset["row"]));
    });
    popup.addEventListener("scroll", () => this.seeRows());
  }

  protected override showFacts(changes: ControlFacts): void {
    this.words.textContent = this.givenWords ?? plainWords(this.facts.caption ?? "");
    this.input.disabled = this.facts.enabled === false;
    this.input.readOnly = this.facts.style === "listOnly";
    if (this.typing === 0 && this.input.value !== this.facts.text) this.input.value = this.facts.text ?? "";
    if (changes.count !== undefined) {
      for (const row of this.rows.keys()) if (row >= changes.count) this.rows.delete(row);
    }
    for (const line of changes.lines ?? []) this.rows.set(line.row, line.text ?? "");
    if (!this.popup.hidden) this.drawRows();
  }

  private get count(): number {
    return this.facts.count ?? 0;
  }

  private toggle(): void {
    this.input.focus();
    this.open(Boolean(this.popup.hidden));
  }

  private open(wanted: boolean): void {
    this.popup.hidden = !wanted;
    this.input.setAttribute("aria-expanded", String(wanted));
    if (!wanted) return;
    this.popup.style.height = `${Math.min(rowsSeen, Math.max(this.count, 1)) * rowHeight}px`;
    this.space.style.height = `${this.count * rowHeight}px`;
    this.popup.scrollTop = Math.max((this.facts.index ?? 0) - 2, 0) * rowHeight;
    this.seeRows();
  }

  private firstSeen(): number {
    return Math.max(Math.floor(this.popup.scrollTop / rowHeight) - rowsSeen, 0);
  }

  private seeRows(): void {
    void this.act({ do: "see", first: this.firstSeen(), count: 3 * rowsSeen });
    this.drawRows();
  }

  private drawRows(): void {
    this.space.style.height = `${this.count * rowHeight}px`;
    const first = this.firstSeen();
    const options: HTMLElement[] = [];
    for (let row = first; row < Math.min(first + 3 * rowsSeen, this.count); ++row) {
      const option = make("div", {
        role: "option", "data-row": row, id: `${this.id}-${row}`, "aria-selected": String(row === this.facts.index),
        "aria-setsize": this.count, "aria-posinset": row + 1,
      }, [this.rows.get(row) ?? ""]);
      option.style.top = `${row * rowHeight}px`;
      options.push(option);
    }
    this.space.replaceChildren(...options);
    this.input.setAttribute("aria-activedescendant", `${this.id}-${this.facts.index ?? -1}`);
  }

  private choose(row: number): void {
    this.open(false);
    void this.act({ do: "choose", row });
  }

  private pressKey(event: KeyboardEvent): void {
    const isOpen = !this.popup.hidden;
    if (event.key === "F4" || (event.altKey && event.key.startsWith("Arrow"))) {
      this.toggle();
    } else if (event.key === "ArrowDown" || event.key === "ArrowUp") {
      const row = (this.facts.index ?? -1) + (event.key === "ArrowDown" ? 1 : -1);
      if (row >= 0 && row < this.count) void this.act({ do: "choose", row });
    } else if (isOpen && (event.key === "Escape" || event.key === "Enter")) {
      this.open(false);
    } else {
      return;
    }
    event.preventDefault();
    event.stopPropagation();
  }

  private async type(): Promise<void> {
    ++this.typing;
    await this.act({ do: "type", text: this.input.value });
    if (--this.typing === 0) this.showFacts({});
  }
}
