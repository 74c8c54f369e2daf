// What a page's own script sees of the control: its properties and its public methods by their names.

import type { Closing } from "./facts.ts";
import type { Line } from "./core_client.ts";

/// The attributes that hold a property before the control is there, and while it isn't.
const attributes = { OnLine: "online", DebugLevel: "debug-level" } as const;
type Property = keyof typeof attributes;

export abstract class ControlElement extends HTMLElement {
  /// As the control last said; nothing while there is none.
  private held: Record<Property, string> | undefined;

  /// The text "Off" for off line; all else is on line.
  get OnLine(): string {
    return this.property("OnLine");
  }

  set OnLine(value: string) {
    this.setProperty("OnLine", value);
  }

  /// Empty for a level that is no number of 16 bits.
  get DebugLevel(): string {
    return this.property("DebugLevel");
  }

  set DebugLevel(value: string | number) {
    this.setProperty("DebugLevel", String(value));
  }

  MyCalculateWeight() {
    return this.call<string>("MyCalculateWeight");
  }

  MyCalculatePartWeight(quantity: string, weight: string) {
    return this.call<number>("MyCalculatePartWeight", quantity, weight);
  }

  JednostkiMiaryNazwaToSymbol(name: string) {
    return this.call<string>("JednostkiMiaryNazwaToSymbol", name);
  }

  /// The array without the item.
  async ArrayRemoveItem(array: unknown[], index: number): Promise<unknown[]> {
    const closing = await this.done({ call: "ArrayRemoveItem", args: [array, index] });
    return closing.args?.[0] as unknown[];
  }

  GridToString() {
    return this.call<string>("GridToString");
  }

  StringToGrid(text: string) {
    return this.call<void>("StringToGrid", text);
  }

  RemoveOldPackRef(text: string, delSerials: string[]) {
    return this.call<string>("RemoveOldPackRef", text, delSerials);
  }

  GetPackedQuantity(text: string) {
    return this.call<string>("GetPackedQuantity", text);
  }

  IndexGrdPozycje(row: number, col: number) {
    return this.call<number>("IndexGrdPozycje", row, col);
  }

  IndexGrdOpak(row: number, col: number) {
    return this.call<number>("IndexGrdOpak", row, col);
  }

  IndexGrdSuma(row: number, col: number) {
    return this.call<number>("IndexGrdSuma", row, col);
  }

  IndexGrdPozycjeDlgDodaj(row: number, col: number) {
    return this.call<number>("IndexGrdPozycjeDlgDodaj", row, col);
  }

  PrepareParents(text: string) {
    return this.call<void>("PrepareParents", text);
  }

  /// Any line of the editor's own protocol: what a user does, a procedure, a question.
  async say(line: Line): Promise<unknown> {
    return (await this.done(line)).value;
  }

  protected abstract closingOf(line: Line): Promise<Closing>;

  /// A control begins with what the attributes say.
  protected takeAttributes(): void {
    this.held = { OnLine: this.attribute("OnLine"), DebugLevel: this.attribute("DebugLevel") };
  }

  protected async readProperties(): Promise<void> {
    const closing = await this.closingOf({ get: "control" });
    if (closing.ok) this.held = closing.value as Record<Property, string>;
  }

  protected forgetProperties(): void {
    this.held = undefined;
  }

  protected async tellChange(property: string): Promise<void> {
    await this.readProperties();
    this.dispatchEvent(new CustomEvent("propertychanged", { detail: property, bubbles: true }));
  }

  private attribute(name: Property): string {
    return this.getAttribute(attributes[name]) ?? "";
  }

  private property(name: Property): string {
    return this.held?.[name] ?? this.attribute(name);
  }

  private setProperty(property: Property, value: string): void {
    if (this.held === undefined) {
      this.setAttribute(attributes[property], value);
      return;
    }
    this.held[property] = value;
    void this.closingOf({ do: "set", property, value });
  }

  private async call<Result>(name: string, ...args: unknown[]): Promise<Result> {
    return (await this.say({ call: name, args })) as Result;
  }

  private async done(line: Line): Promise<Closing> {
    const closing = await this.closingOf(line);
    if (!closing.ok) throw new Error(closing.error);
    return closing;
  }
}
