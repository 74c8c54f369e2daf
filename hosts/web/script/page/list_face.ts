// A drop-down list: its text, and its rows below it while it is open; while one types, those that fit.
// Only rows that are seen are in the page.

import { make, plainWords } from "./dom.ts";
import { Face, type Host } from "./face.ts";
import type { ControlFacts, Row } from "./facts.ts";

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
  /// Those that fit what is typed, best first; nothing where the whole list is shown.
  private proposals: Row[] | undefined;
  /// The proposal that Enter takes; -1 for none.
  private proposal = -1;
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
    // A long list is made ready before the first key.
    input.addEventListener("focus", () => void this.askProposals(""));
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

  /// The core has found these for the text.
  propose(text: string, rows: Row[]): void {
    if (text === "" || text !== this.input.value || this.input !== this.root()?.activeElement) return;
    this.proposals = rows;
    this.proposal = -1;
    this.popup.scrollTop = 0;
    this.drop(rows.length > 0);
  }

  override showTyped(text: string): void {
    super.showTyped(text);
    void this.askProposals(text);
  }

  private root(): ShadowRoot | undefined {
    const root = this.element.getRootNode();
    return root instanceof ShadowRoot ? root : undefined;
  }

  private get count(): number {
    return this.facts.count ?? 0;
  }

  private get rowsShown(): number {
    return this.proposals?.length ?? this.count;
  }

  /// The marked row, by its place below the field.
  private get marked(): number {
    return this.proposals === undefined ? (this.facts.index ?? -1) : this.proposal;
  }

  private toggle(): void {
    this.input.focus();
    this.open(Boolean(this.popup.hidden));
  }

  private open(wanted: boolean): void {
    this.proposals = undefined;
    this.drop(wanted);
    if (!wanted) return;
    this.popup.scrollTop = Math.max((this.facts.index ?? 0) - 2, 0) * rowHeight;
    this.seeRows();
  }

  private drop(wanted: boolean): void {
    this.popup.hidden = !wanted;
    this.input.setAttribute("aria-expanded", String(wanted));
    if (!wanted) {
      this.space.replaceChildren();
      this.input.removeAttribute("aria-activedescendant");
      return;
    }
    this.popup.style.height = `${Math.min(rowsSeen, Math.max(this.rowsShown, 1)) * rowHeight + 2}px`;
    this.drawRows();
  }

  private firstSeen(): number {
    return Math.max(Math.floor(this.popup.scrollTop / rowHeight) - rowsSeen, 0);
  }

  private seeRows(): void {
    if (this.proposals === undefined) void this.act({ do: "see", first: this.firstSeen(), count: 3 * rowsSeen });
    this.drawRows();
  }

  private drawRows(): void {
    this.space.style.height = `${this.rowsShown * rowHeight}px`;
    const first = this.firstSeen();
    const options: HTMLElement[] = [];
    for (let place = first; place < Math.min(first + 3 * rowsSeen, this.rowsShown); ++place) {
      const { row, text } = this.proposals?.[place] ?? { row: place, text: this.rows.get(place) };
      const option = make("div", {
        role: "option", "data-row": row, id: `${this.id}-${place}`, "aria-selected": String(place === this.marked),
        "aria-setsize": this.rowsShown, "aria-posinset": place + 1,
      }, [text ?? ""]);
      option.style.top = `${place * rowHeight}px`;
      options.push(option);
    }
    this.space.replaceChildren(...options);
    const marked = options.find((option) => option.id === `${this.id}-${this.marked}`);
    if (marked === undefined) this.input.removeAttribute("aria-activedescendant");
    else this.input.setAttribute("aria-activedescendant", marked.id);
  }

  private mark(proposal: number): void {
    this.proposal = proposal;
    const top = proposal * rowHeight;
    const seen = this.popup.clientHeight - rowHeight;
    this.popup.scrollTop = Math.min(Math.max(this.popup.scrollTop, top - seen), top);
    this.drawRows();
  }

  private choose(row: number): void {
    this.open(false);
    void this.act({ do: "choose", row });
  }

  private pressKey(event: KeyboardEvent): void {
    const isOpen = !this.popup.hidden;
    const step = event.key === "ArrowDown" ? 1 : event.key === "ArrowUp" ? -1 : 0;
    if (isOpen && this.proposals !== undefined && step !== 0 && !event.altKey) {
      this.mark(Math.min(Math.max(this.proposal + step, 0), this.proposals.length - 1));
    } else if (isOpen && event.key === "Enter" && this.proposals?.[this.proposal] !== undefined) {
      this.choose(this.proposals[this.proposal]!.row);
    } else if (event.key === "F4" || (event.altKey && event.key.startsWith("Arrow"))) {
      this.toggle();
    } else if (step !== 0) {
      const row = (this.facts.index ?? -1) + step;
      if (row >= 0 && row < this.count) void this.act({ do: "choose", row });
    } else if (isOpen && (event.key === "Escape" || (event.key === "Enter" && this.proposals === undefined))) {
      this.open(false);
    } else {
      if (event.key === "Enter") this.open(false);
      return;
    }
    event.preventDefault();
    event.stopPropagation();
  }

  private async type(): Promise<void> {
    ++this.typing;
    const typed = this.act({ do: "type", text: this.input.value });
    void this.askProposals(this.input.value);
    await typed;
    if (--this.typing === 0) this.showFacts({});
  }

  private async askProposals(text: string): Promise<void> {
    if (this.facts.style !== "listOnly") await this.act({ do: "propose", text });
  }
}
