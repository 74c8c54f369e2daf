// A table: of its rows only those that are seen are in the page, each as high as the others.

import { make } from "./dom.ts";
import { Face, type Host } from "./face.ts";
import type { ControlFacts, Row, TypedInto } from "./facts.ts";

const rowHeight = 30;
const surplus = 10;
/// At the size of letters that pages have.
const twipsOfPixel = 11;
const narrowest = 60;
/// What a table's model knows: all other keys are left to the browser, at once.
const keys = new Set([
  "ArrowUp", "ArrowDown", "ArrowLeft", "ArrowRight", "PageUp", "PageDown", "Home", "End", "Enter", "Insert", "Delete",
  "F2", " ",
]);
let lastNumber = 0;

interface Cell {
  row: number;
  col: number;
}

export class TableFace extends Face {
  private readonly body: HTMLElement;
  private readonly heading: HTMLElement;
  private readonly rows = new Map<number, Row>();
  /// Those in the page that are as they should be.
  private readonly drawn = new Map<number, HTMLElement>();
  /// Where the mouse went down.
  private pressed: Cell | undefined;
  private readonly id = `table-${++lastNumber}`;

  private readonly isScanned: boolean;
  private readonly isList: boolean;

  constructor(name: string, host: Host, label: string, typedInto: TypedInto, private readonly overCell?: HTMLElement) {
    const heading = make("div", { class: "row heading", role: "row", "aria-rowindex": 1 });
    const body = make("div", { class: "rows", role: "rowgroup" });
    super(name, make("div", { class: "table", role: "grid", tabindex: 0, "aria-label": label }, [
      make("div", { role: "rowgroup", class: "head" }, [heading]), body,
    ]), host);
    this.isScanned = typedInto.tables.includes(name);
    this.isList = typedInto.lists.includes(name);
    this.heading = heading;
    this.body = body;
    this.element.addEventListener("scroll", () => this.seeRows());
    this.element.addEventListener("mousedown", (event) => this.press(event));
    this.element.addEventListener("dblclick", (event) => {
      if (this.cellAt(event) !== undefined) void this.act({ do: "doubleClick" });
    });
    this.element.addEventListener("keydown", (event) => this.pressKey(event));
    new ResizeObserver(() => this.seeRows()).observe(this.element);
  }

  protected override showFacts(changes: ControlFacts): void {
    this.element.setAttribute("aria-rowcount", String(this.count));
    this.element.setAttribute("aria-colcount", String(this.facts.cols ?? 0));
    this.element.setAttribute("aria-disabled", String(this.facts.enabled === false));
    if (changes.count !== undefined) {
      for (const row of this.rows.keys()) if (row >= changes.count) this.rows.delete(row);
    }
    for (const line of changes.lines ?? []) {
      this.rows.set(line.row, line);
      this.undraw(line.row);
    }
    // Rows that are told because they are seen change nothing else.
    if (Object.keys(changes).some((name) => name !== "lines")) for (const row of [...this.drawn.keys()]) this.undraw(row);
    this.body.style.height = `${Math.max(this.count - this.fixed, 0) * rowHeight}px`;
    if (changes.row !== undefined || changes.top !== undefined) this.scrollToCurrent();
    this.draw();
  }

  private get count(): number {
    return this.facts.count ?? 0;
  }

  private get fixed(): number {
    return this.facts.fixed ?? 1;
  }

  /// The first row in the page, and the one after the last.
  private range(): [number, number] {
    const first = Math.floor(this.element.scrollTop / rowHeight) - surplus;
    const seen = Math.ceil(this.element.clientHeight / rowHeight) + 2 * surplus;
    const from = Math.max(first, 0) + this.fixed;
    return [from, Math.min(from + seen, this.count)];
  }

  private seeRows(): void {
    const [from, to] = this.range();
    if (this.facts.kind !== undefined) void this.act({ do: "see", first: from, count: Math.max(to - from, 1) });
    this.draw();
  }

  /// Brings the current row into view.
  reveal(): void {
    this.scrollToCurrent();
  }

  private scrollToCurrent(): void {
    const top = ((this.facts.row ?? this.fixed) - this.fixed) * rowHeight;
    const seen = this.element.clientHeight - rowHeight;
    if (top < this.element.scrollTop) this.element.scrollTop = top;
    else if (seen > 0 && top + rowHeight > this.element.scrollTop + seen) {
      this.element.scrollTop = top + rowHeight - seen;
    }
  }

  private columnsShown(): number[] {
    const widths = this.facts.widths ?? [];
    return widths.flatMap((width, column) => (width === 0 ? [] : [column]));
  }

  private cell(row: Row, column: number, role: string): HTMLElement {
    const look = row.looks?.find((one) => one.col === column);
    const cell = make("div", {
      role, class: "cell", "data-col": column, "aria-colindex": column + 1, id: `${this.id}-${row.row}-${column}`,
    }, [row.cells?.[column] ?? ""]);
    const widths = this.facts.widths ?? [];
    const width = Math.abs(widths[column] ?? 0);
    cell.style.width = `${Math.max(Math.round(width / twipsOfPixel), narrowest)}px`;
    // What room is left is the widest column's.
    if (width === Math.max(...widths)) cell.classList.add("widest");
    if (look?.alignment === "right") cell.classList.add("right");
    if (look?.alignment === "centre") cell.classList.add("centre");
    if (look?.bold) cell.classList.add("bold");
    if (look !== undefined && look.colour !== "#ffffff") cell.style.setProperty("--cell", look.colour);
    if (look !== undefined && look.colour !== "#ffffff") cell.classList.add("coloured");
    return cell;
  }

  private draw(): void {
    const columns = this.columnsShown();
    const heading = this.rows.get(0);
    if (heading !== undefined) {
      this.heading.replaceChildren(...columns.map((column) => this.cell(heading, column, "columnheader")));
    }
    const [from, to] = this.range();
    for (const number of [...this.drawn.keys()]) if (number < from || number >= to) this.undraw(number);
    for (let number = from; number < to; ++number) {
      const element = this.drawn.get(number) ?? this.drawRow(number, columns);
      this.drawn.set(number, element);
      const there = this.body.children[number - from] ?? null;
      if (there !== element) this.body.insertBefore(element, there);
    }
    if (this.overCell !== undefined && !this.overCell.isConnected) this.body.append(this.overCell);
    this.placeOverCell();
    this.tellCurrent();
  }

  private drawRow(number: number, columns: number[]): HTMLElement {
    const row = this.rows.get(number);
    const isCurrent = number === this.facts.row;
    const element = make("div", {
      role: "row", class: isCurrent ? "row current" : "row", "data-row": number, "aria-rowindex": number + 1,
      "aria-selected": String(isCurrent), id: `${this.id}-${number}`,
    }, row === undefined ? [] : columns.map((column) => this.cell(row, column, "gridcell")));
    element.style.top = `${(number - this.fixed) * rowHeight}px`;
    for (const cell of element.children) {
      cell.classList.toggle("marked", this.isMarked(number, Number((cell as HTMLElement).dataset["col"])));
    }
    if (isCurrent) element.querySelector(`[data-col="${this.facts.col}"]`)?.classList.add("current");
    return element;
  }

  private undraw(number: number): void {
    this.drawn.get(number)?.remove();
    this.drawn.delete(number);
  }

  /// For those who don't see it: the current cell, its row where the cell's column is hidden.
  private tellCurrent(): void {
    const current = this.body.querySelector(".cell.current") ?? this.body.querySelector(".row.current");
    if (current === null) this.element.removeAttribute("aria-activedescendant");
    else this.element.setAttribute("aria-activedescendant", current.id);
  }

  /// The field that is edited in a cell's place.
  private placeOverCell(): void {
    const cell = this.body.querySelector<HTMLElement>(".cell.current");
    if (this.overCell === undefined || cell === null) return;
    const row = cell.parentElement!;
    Object.assign(this.overCell.style, {
      left: `${cell.offsetLeft}px`, top: row.style.top, width: `${cell.offsetWidth}px`, height: `${rowHeight}px`,
    });
  }

  private cellAt(event: MouseEvent): Cell | undefined {
    // What happens outside of the element tells its target by the path alone.
    const cell = (event.composedPath()[0] as Element).closest?.<HTMLElement>(".cell") ?? null;
    if (cell !== null && !this.body.contains(cell)) return undefined;
    const row = Number(cell?.parentElement?.dataset["row"] ?? -1);
    return cell === null || row < 0 ? undefined : { row, col: Number(cell.dataset["col"]) };
  }

  private press(event: MouseEvent): void {
    if (event.button !== 0) return;
    this.pressed = this.cellAt(event);
    if (this.pressed === undefined) return;
    event.preventDefault();
    // The button may be released anywhere.
    addEventListener("mouseup", (up) => this.release(up), { once: true });
  }

  private release(event: MouseEvent): void {
    const from = this.pressed;
    const to = this.cellAt(event);
    this.pressed = undefined;
    if (from === undefined) return;
    if (to === undefined || (to.row === from.row && to.col === from.col)) void this.act({ do: "cell", ...from });
    else void this.act({ do: "select", ...from, rowSel: to.row, colSel: to.col });
  }

  /// Whether a cell is marked, the current one apart.
  private isMarked(row: number, column: number): boolean {
    const { row: fromRow = 0, col: fromColumn = 0, rowSel: toRow = 0, colSel: toColumn = 0 } = this.facts;
    const isWithin = (place: number, from: number, to: number) => place >= Math.min(from, to) && place <= Math.max(from, to);
    return isWithin(row, fromRow, toRow) && (this.facts.selectsRows === true || isWithin(column, fromColumn, toColumn));
  }

  private pressKey(event: KeyboardEvent): void {
    const withControl = event.ctrlKey && (event.key === "Home" || event.key === "End");
    if (event.defaultPrevented || (event.ctrlKey && !withControl) || event.altKey || event.target !== this.element) return;
    const isDigit = this.isScanned && event.key >= "0" && event.key <= "9";
    const isTyped = this.isList && event.key !== " " && [...event.key].length === 1;
    if (!(isDigit || isTyped || keys.has(event.key))) return;
    event.preventDefault();
    event.stopPropagation();
    this.reveal();
    if (isTyped) return void this.act({ do: "key", code: 0, text: event.key });
    void this.act({
      do: "key", code: isDigit ? event.key.charCodeAt(0) : event.keyCode, shift: event.shiftKey && !isDigit,
      ...(withControl ? { control: true } : {}),
    });
  }
}
