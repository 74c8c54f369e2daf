// A form: its controls as faces, in their places.

import { paperPreview } from "#words";
import type { Commands } from "./commands.ts";
import type { DateForm } from "./date_form.ts";
import { make } from "./dom.ts";
import { drawn } from "./sheets.ts";
import { Face, type Host } from "./face.ts";
import type { ControlFacts, FormFacts, TypedInto } from "./facts.ts";
import { besideTheirHeading, mainForms, overCells, ownWords, type Group } from "./layouts.ts";
import { ListFace } from "./list_face.ts";
import { DateFace, TimeFace } from "./picker_faces.ts";
import { ButtonFace, LabelFace, PlainListFace, SpinFace, TextFace } from "./simple_faces.ts";
import { TableFace } from "./table_face.ts";

export class FormView {
  readonly element: HTMLElement;
  private readonly faces = new Map<string, Face>();
  private readonly headings = new Map<string, HTMLElement>();
  private readonly prefix: string;
  private readonly sheet = make("div", { class: "sheet", role: "img", "aria-label": paperPreview });
  private facts: FormFacts = {};

  /// The main form's controls are called by their own names, those of dialogs with the form's. The
  /// kinds are those of all its controls.
  constructor(
    readonly name: string, layout: Group, private readonly kinds: Record<string, ControlFacts>,
    private readonly host: Host, private readonly commands: Commands,
    private readonly dates: DateForm, private readonly typedInto: TypedInto,
  ) {
    this.prefix = mainForms.has(name) ? "" : `${name}.`;
    this.element = this.group(layout);
    this.element.classList.add("form");
  }

  showForm(changes: FormFacts): void {
    this.facts = { ...this.facts, ...changes };
    this.element.inert = this.facts.enabled === false;
  }

  showControl(name: string, changes: ControlFacts): void {
    this.faces.get(name)?.show(changes);
    const heading = this.headings.get(name);
    if (heading !== undefined && changes.caption !== undefined) heading.textContent = changes.caption.trim();
  }

  /// An empty text for no sheet.
  showSheet(svg: string): void {
    this.sheet.replaceChildren(...(svg === "" ? [] : [drawn(svg, document)]));
  }

  /// The name of the control that has the focus by the model.
  get focus(): string {
    return this.facts.focus ?? "";
  }

  face(name: string): Face | undefined {
    return this.faces.get(name);
  }

  private group(group: Group): HTMLElement {
    if (group.sheet === true) return this.sheet;
    const children = group.of.map((part) => (typeof part === "string" ? this.control(part) : this.group(part)));
    if (group.heading === undefined && group.frame === undefined) {
      return make("div", { class: group.row ? "beside" : "stack" }, children);
    }
    const legend = make("legend", {}, [group.heading ?? ""]);
    if (group.frame !== undefined) this.headings.set(this.prefix + group.frame, legend);
    return make("fieldset", {}, [legend, make("div", { class: group.row ? "beside" : "stack" }, children)]);
  }

  private control(shortName: string): HTMLElement {
    const name = this.prefix + shortName;
    const face = this.makeFace(name);
    this.faces.set(name, face);
    if (this.typedInto.fields.includes(name)) face.takeScans();
    return face.element;
  }

  private makeFace(name: string): Face {
    const words = ownWords[name];
    switch (this.kinds[name]?.kind) {
      case "textField":
        return new TextFace(name, this.host, words);
      case "button":
      case "pictureButton":
        return this.makeButton(name);
      case "dropDownList":
        return new ListFace(name, this.host, words);
      case "datePicker":
        return new DateFace(name, this.host, this.dates, words);
      case "timePicker":
        return new TimeFace(name, this.host, words);
      case "spinButtons":
        return new SpinFace(name, this.host);
      case "table":
        return new TableFace(name, this.host, words ?? "", this.typedInto, this.overCell(name));
      case "driveList":
        return new PlainListFace(name, this.host, words ?? "", "drive");
      case "folderList":
        return new PlainListFace(name, this.host, words ?? "", "folder");
      case "fileList":
        return new PlainListFace(name, this.host, words ?? "", "file");
      default:
        return new LabelFace(name, this.host, !besideTheirHeading.has(name));
    }
  }

  private makeButton(name: string): Face {
    const command = this.commands.of(name);
    // In a dialog the buttons keep their own words.
    const words = this.prefix === "" ? command?.words : undefined;
    return new ButtonFace(name, this.host, words ?? ownWords[name], command?.tip);
  }

  private overCell(table: string): HTMLElement | undefined {
    const name = overCells[table];
    if (name === undefined) return undefined;
    const face = new TextFace(name, this.host, ownWords[name]);
    face.element.classList.add("over");
    this.faces.set(name, face);
    return face.element;
  }
}
