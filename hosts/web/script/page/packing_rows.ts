// A long list of rows of one height, of which only those are in the page that are seen.

import { make } from "./dom.ts";

const rowHeight = 30;
/// Drawn beyond the seen ones, so that scrolling shows no gaps.
const spare = 6;

export interface DrawnRow {
  cells: HTMLElement[];
  attributes: Record<string, string | number | boolean | undefined>;
}

export class PackingRows {
  readonly element: HTMLElement;
  private readonly space = make("div", { class: "space", role: "presentation" });
  private count = 0;
  private at = 0;

  constructor(role: string, label: string, private readonly draw: (row: number) => DrawnRow) {
    this.element = make("div", { class: "packing-rows", role, tabindex: 0, "aria-label": label }, [this.space]);
    this.element.addEventListener("scroll", () => this.show());
    new ResizeObserver(() => this.show()).observe(this.element);
  }

  get current(): number {
    return this.at;
  }

  /// Of an event's target; nothing beside the rows.
  rowOf(target: EventTarget | null): number | undefined {
    const row = (target as Element).closest<HTMLElement>("[data-at]")?.dataset["at"];
    return row === undefined ? undefined : Number(row);
  }

  setCount(count: number): void {
    this.count = count;
    this.at = Math.min(this.at, Math.max(count - 1, 0));
    this.space.setAttribute("data-count", String(count));
    this.show();
  }

  goTo(row: number): void {
    this.at = Math.max(0, Math.min(row, this.count - 1));
    const top = this.at * rowHeight;
    if (top < this.element.scrollTop) this.element.scrollTop = top;
    const seen = this.element.clientHeight;
    if (top + rowHeight > this.element.scrollTop + seen) this.element.scrollTop = top + rowHeight - seen;
    this.show();
  }

  /// Where a key leads; nothing for a key that leads nowhere.
  target(key: string): number | undefined {
    const page = Math.max(Math.floor(this.element.clientHeight / rowHeight) - 1, 1);
    switch (key) {
      case "ArrowUp":
        return this.at - 1;
      case "ArrowDown":
        return this.at + 1;
      case "PageUp":
        return this.at - page;
      case "PageDown":
        return this.at + page;
      case "Home":
        return 0;
      case "End":
        return this.count - 1;
      default:
        return undefined;
    }
  }

  show(): void {
    const first = Math.max(Math.floor(this.element.scrollTop / rowHeight) - spare, 0);
    const last = Math.min(Math.ceil((this.element.scrollTop + this.element.clientHeight) / rowHeight) + spare, this.count);
    const seen: HTMLElement[] = [];
    for (let row = first; row < last; ++row) seen.push(this.made(row));
    // The current row is told to screen readers wherever it is.
    if (this.count > 0 && (this.at < first || this.at >= last)) seen.push(this.made(this.at));
    this.space.style.height = `${this.count * rowHeight}px`;
    this.space.replaceChildren(...seen);
    if (this.count > 0) this.element.setAttribute("aria-activedescendant", this.nameOf(this.at));
    else this.element.removeAttribute("aria-activedescendant");
  }

  private nameOf(row: number): string {
    return `${this.element.getAttribute("role")}-${row}`;
  }

  private made(row: number): HTMLElement {
    const { cells, attributes } = this.draw(row);
    const classes = row === this.at ? "packing-row current" : "packing-row";
    const element = make("div", {
      ...attributes, id: this.nameOf(row), class: classes, "data-at": row, "aria-posinset": row + 1, "aria-setsize": this.count,
    }, cells);
    element.style.top = `${row * rowHeight}px`;
    return element;
  }
}
