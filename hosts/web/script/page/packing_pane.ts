// What lies where, beside the document: the lines with how much of each is packed, the packages as a
// tree. The rest of the marked lines goes into a package by a key or by dragging.

import * as words from "#words";
import { make, plainWords } from "./dom.ts";
import type { Packing, PackingLine, PackingPlace } from "./facts.ts";
import { PackingRows, type DrawnRow } from "./packing_rows.ts";

const dragged = "application/x-awizo-lines";

export interface PackingHost {
  /// What lies where now; nothing while it can't be told.
  read(): Promise<Packing | undefined>;
  /// The rest of these lines into the package.
  pack(lines: number[], packageRow: number): Promise<unknown>;
  goTo(table: string, row: number): Promise<unknown>;
  /// A key of what may be a scanned code, on that package; answers whether it is one.
  scanKey(code: number, packageRow?: number): Promise<boolean>;
  /// Back to the document.
  leave(): void;
}

function cell(kind: string, text: string): HTMLElement {
  return make("span", { class: kind, title: text }, [text]);
}

export class PackingPane {
  readonly element: HTMLElement;
  private readonly summary = make("output");
  private readonly onlyRest = make("input", { type: "checkbox" });
  private readonly button = make("button", { type: "button", title: words.packRestTip }, [plainWords(words.packRest)]);
  private readonly lines: PackingRows;
  private readonly places: PackingRows;
  private all: Packing = { summary: "", lines: [], places: [] };
  private shownLines: PackingLine[] = [];
  private shownPlaces: PackingPlace[] = [];
  /// By their rows in the table.
  private readonly marked = new Set<number>();
  /// Serials of the packages that the user has closed.
  private readonly closed = new Set<string>();
  /// Where a range of marks begins.
  private anchor = 0;
  private timer: ReturnType<typeof setTimeout> | undefined;
  private mayScan = false;

  constructor(private readonly host: PackingHost) {
    this.lines = new PackingRows("listbox", words.packingLines, (row) => this.drawLine(row));
    this.places = new PackingRows("tree", words.packingPackages, (row) => this.drawPlace(row));
    this.lines.element.setAttribute("aria-multiselectable", "true");
    const filter = make("label", {}, [this.onlyRest, plainWords(words.packingOnlyRest)]);
    const closer = make("button", { type: "button", class: "closer", "aria-label": words.closeDialog }, ["×"]);
    this.element = make("section", { class: "packing extras", hidden: true }, [
      make("div", { class: "title" }, [this.summary, closer]), filter, this.lines.element, this.places.element, this.button,
    ]);
    this.onlyRest.addEventListener("change", () => this.showLines());
    closer.addEventListener("click", () => this.hide());
    this.button.addEventListener("click", () => this.packMarked());
    this.listenToLines();
    this.listenToPlaces();
  }

  get isShown(): boolean {
    return !this.element.hidden;
  }

  get hasFocus(): boolean {
    return this.element.matches(":focus-within");
  }

  /// Comes with the focus; where it has the focus already, it goes.
  toggle(): void {
    if (this.isShown && this.hasFocus) return this.hide();
    this.element.hidden = false;
    void this.refresh();
    this.lines.element.focus();
    this.element.scrollIntoView({ block: "nearest" });
  }

  private hide(): void {
    this.host.leave();
    this.element.hidden = true;
  }

  /// The document has become another.
  changed(): void {
    if (this.isShown) this.timer ??= setTimeout(() => void this.refresh(), 100);
  }

  clear(): void {
    clearTimeout(this.timer);
    this.timer = undefined;
    this.element.hidden = true;
    this.marked.clear();
    this.closed.clear();
  }

  private async refresh(): Promise<void> {
    clearTimeout(this.timer);
    this.timer = undefined;
    const packing = await this.host.read();
    if (packing === undefined) return;
    if (this.hasOtherLines(packing.lines)) this.shownLines = [];
    const current = this.shownPlaces[this.places.current];
    this.all = packing;
    this.summary.textContent = packing.summary;
    this.showLines();
    this.showPlaces();
    // Its row is another where one above it has gone; a line that has gone leaves its package.
    const rowOf = (line?: number) => this.shownPlaces.findIndex((place) => place.line === line && place.serial === current?.serial);
    const same = [rowOf(current?.line), rowOf(0)].find((row) => row >= 0);
    if (same !== undefined) this.places.goTo(same);
  }

  /// Whether the marked rows may hold other lines than those that were marked.
  private hasOtherLines(lines: PackingLine[]): boolean {
    const named = (line?: PackingLine) => JSON.stringify([line?.number, line?.name]);
    const isOther = (row: number) => {
      const hasRow = (line: PackingLine) => line.row === row;
      return named(lines.find(hasRow)) !== named(this.all.lines.find(hasRow));
    };
    return lines.length !== this.all.lines.length || [...this.marked].some(isOther);
  }

  private showLines(): void {
    const isFirst = this.shownLines.length === 0;
    if (isFirst) this.marked.clear();
    this.shownLines = this.all.lines.filter((line) => !this.onlyRest.checked || !line.isWhole);
    for (const row of this.marked) if (!this.shownLines.some((line) => line.row === row)) this.marked.delete(row);
    this.lines.setCount(this.shownLines.length);
    const current = this.shownLines[this.lines.current];
    // Where the marked ones have gone, nobody has marked the one that is in their place.
    if (isFirst && current !== undefined) this.marked.add(current.row);
    this.showStates();
  }

  private showPlaces(): void {
    this.shownPlaces = [];
    let closedAt = Infinity;
    for (const place of this.all.places) {
      if (place.level > closedAt) continue;
      closedAt = place.line === 0 && this.closed.has(place.serial) ? place.level : Infinity;
      this.shownPlaces.push(place);
    }
    this.places.setCount(this.shownPlaces.length);
    this.showStates();
  }

  private showStates(): void {
    this.lines.show();
    this.button.disabled = this.marked.size === 0 || this.shownPlaces.length === 0;
  }

  private drawLine(at: number): DrawnRow {
    const line = this.shownLines[at]!;
    return {
      cells: [cell("number", line.number), cell("name", line.name), cell("quantity", line.packed)],
      attributes: { role: "option", draggable: "true", "aria-selected": String(this.marked.has(line.row)) },
    };
  }

  private drawPlace(at: number): DrawnRow {
    const place = this.shownPlaces[at]!;
    const name = cell("name", place.name);
    name.style.paddingInlineStart = `${(place.level - 1) * 16}px`;
    const isPackage = place.line === 0;
    const holds = isPackage && (this.all.places[this.all.places.indexOf(place) + 1]?.level ?? 0) > place.level;
    return {
      cells: [name, cell("quantity", place.quantity)],
      attributes: {
        role: "treeitem", "aria-level": place.level, "aria-selected": String(at === this.places.current),
        "aria-expanded": holds ? String(!this.closed.has(place.serial)) : undefined,
        "data-package": place.package,
      },
    };
  }

  private listenToLines(): void {
    const element = this.lines.element;
    element.addEventListener("click", (event) => {
      const at = this.lines.rowOf(event.target);
      if (at !== undefined) this.mark(at, event.shiftKey, event.ctrlKey);
    });
    element.addEventListener("dblclick", () => this.goToLine());
    element.addEventListener("keydown", (event) => {
      const target = event.ctrlKey || event.altKey ? undefined : this.lines.target(event.key);
      if (target !== undefined) this.forgetScan();
      if (target !== undefined) this.mark(Math.max(0, Math.min(target, this.shownLines.length - 1)), event.shiftKey, false);
      else if (event.key === " ") this.mark(this.lines.current, false, true);
      else if (event.key === "Enter") void this.endScan(() => this.goToLine());
      else if (!this.takesKey(event)) return;
      event.preventDefault();
      event.stopPropagation();
    });
    element.addEventListener("dragstart", (event) => {
      const at = this.lines.rowOf(event.target);
      if (at === undefined) return;
      if (!this.marked.has(this.shownLines[at]!.row)) this.mark(at, false, false);
      event.dataTransfer?.setData(dragged, JSON.stringify(this.markedLines()));
    });
  }

  private listenToPlaces(): void {
    const element = this.places.element;
    element.addEventListener("click", (event) => {
      const at = this.places.rowOf(event.target);
      if (at !== undefined) this.places.goTo(at);
    });
    element.addEventListener("dblclick", () => this.goToPlace());
    element.addEventListener("keydown", (event) => {
      const target = event.ctrlKey || event.altKey ? undefined : this.places.target(event.key);
      if (target !== undefined) this.forgetScan();
      if (target !== undefined) this.places.goTo(target);
      else if (event.key === "ArrowLeft" || event.key === "ArrowRight") this.fold(event.key === "ArrowLeft");
      else if (event.key === "Enter") void this.endScan(() => this.goToPlace());
      else if (!this.takesKey(event)) return;
      event.preventDefault();
      event.stopPropagation();
    });
    element.addEventListener("dragover", (event) => {
      const isOurs = event.dataTransfer?.types.includes(dragged) === true;
      if (isOurs && this.places.rowOf(event.target) !== undefined) event.preventDefault();
    });
    element.addEventListener("drop", (event) => {
      const at = this.places.rowOf(event.target);
      const lines = event.dataTransfer?.getData(dragged) ?? "";
      if (at === undefined || lines === "") return;
      event.preventDefault();
      void this.host.pack(JSON.parse(lines) as number[], this.shownPlaces[at]!.package);
    });
  }

  /// A key that both lists have.
  private takesKey(event: KeyboardEvent): boolean {
    if (event.key >= "0" && event.key <= "9" && !event.ctrlKey && !event.altKey) return this.scan(event.key);
    if (event.key !== "Insert") return false;
    // A key held down would pack what nobody marked.
    if (!event.repeat) this.packMarked();
    return true;
  }

  private scan(digit: string): boolean {
    this.mayScan = true;
    void this.host.scanKey(digit.charCodeAt(0), this.shownPlaces[this.places.current]?.package);
    return true;
  }

  /// Any other key than a code's: what was typed so far is none.
  private forgetScan(): void {
    if (this.mayScan) void this.host.scanKey(0);
    this.mayScan = false;
  }

  /// Enter ends a scanned code, where one was scanned.
  private async endScan(otherwise: () => void): Promise<void> {
    const isEnd = this.mayScan && (await this.host.scanKey(13, this.shownPlaces[this.places.current]?.package));
    this.mayScan = false;
    if (!isEnd) otherwise();
  }

  /// `more`: the range from where marking began; `other`: this one too, or no more.
  private mark(at: number, more: boolean, other: boolean): void {
    const line = this.shownLines[at];
    if (line === undefined) return;
    if (!other) this.marked.clear();
    if (!more) this.anchor = at;
    const [first, last] = [Math.min(this.anchor, at), Math.max(this.anchor, at)];
    if (other && this.marked.has(line.row)) this.marked.delete(line.row);
    else for (const one of this.shownLines.slice(first, last + 1)) this.marked.add(one.row);
    this.lines.goTo(at);
    this.showStates();
  }

  private markedLines(): number[] {
    return [...this.marked].sort((one, other) => one - other);
  }

  private packMarked(): void {
    const place = this.shownPlaces[this.places.current];
    if (place !== undefined && this.marked.size > 0) void this.host.pack(this.markedLines(), place.package);
  }

  private fold(closes: boolean): void {
    const place = this.shownPlaces[this.places.current];
    if (place === undefined || place.line > 0) return;
    if (closes) this.closed.add(place.serial);
    else this.closed.delete(place.serial);
    this.showPlaces();
  }

  private goToLine(): void {
    const line = this.shownLines[this.lines.current];
    if (line !== undefined) void this.host.goTo("grdPozycje", line.row);
  }

  private goToPlace(): void {
    const place = this.shownPlaces[this.places.current];
    if (place === undefined) return;
    void (place.line > 0 ? this.host.goTo("grdPozycje", place.line) : this.host.goTo("grdOpakowania", place.package));
  }
}
