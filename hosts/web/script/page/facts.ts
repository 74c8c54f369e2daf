// What the core tells of its forms and controls. A member that a change doesn't name stays.

export interface Row {
  row: number;
  text?: string;
  height?: number;
  cells?: string[];
  looks?: { col: number; colour: string; alignment: string; bold: boolean; wrap: boolean }[];
}

export interface ControlFacts {
  kind?: string;
  visible?: boolean;
  enabled?: boolean;
  cover?: string | null;
  caption?: string;
  heading?: string;
  text?: string;
  limit?: number;
  alignment?: string;
  index?: number;
  style?: string;
  count?: number;
  rows?: string[];
  path?: string;
  date?: string | null;
  time?: string | null;
  min?: string | number;
  max?: string | number;
  allowsNone?: boolean;
  long?: boolean;
  fixed?: number;
  cols?: number;
  row?: number;
  col?: number;
  /// The other corner of what is marked.
  rowSel?: number;
  colSel?: number;
  selectsRows?: boolean;
  widths?: number[];
  top?: number;
  lines?: Row[];
}

export interface FormFacts {
  shown?: boolean;
  caption?: string;
  enabled?: boolean;
  focus?: string;
  controls?: string[];
}

export interface Changes {
  event: "changes";
  forms?: Record<string, FormFacts>;
  controls?: Record<string, ControlFacts>;
}

export interface Box {
  event: "message";
  text: string;
  title: string;
  icon: string;
  buttons: "OK" | "YesNo";
  /// What it means to the user.
  advice?: string;
}

/// A question of the desk, with the words of its own answers.
export interface Question {
  event: "question";
  text: string;
  icon: string;
  harmless: string;
  choices: { choice: string; words: string }[];
}

/// The commands that take a step back and do it again; null where there is none.
export interface Steps {
  takeBack: string | null;
  doAgain: string | null;
}

/// A command of the desk: it presses a button, or is a task of its own.
export interface Command {
  words: string;
  tip: string;
  on?: string;
  task?: string;
  keys: { code: number; control: boolean; shift: boolean }[];
  /// The first of them in words; empty where it has none.
  key: string;
  /// In its menu; there is a line between two groups.
  group: number;
  /// Its keys work while this has the focus; null: anywhere.
  place: string | null;
  /// Its keys work in dialogs and boxes too.
  inDialogs: boolean;
  /// It acts on the current row of that table, which must be seen before.
  onCurrentRow: boolean;
  /// Of a switch alone.
  isOn?: boolean;
}

export interface TypedInto {
  /// Into which a scanner types.
  fields: string[];
  tables: string[];
  /// Tables in which the user types to find a row.
  lists: string[];
}

export interface CommandMenu {
  heading: string;
  commands: Command[];
}

/// How the document stands.
export interface Standing {
  title: string;
  status: string;
  address: string;
  isUnsent: boolean;
}

/// Work during which the user can do nothing else.
export interface Work {
  what: string;
  mayStop: boolean;
  /// Whoever ends it now must be asked.
  asks: boolean;
}

/// A line beside what of it lies in packages.
export interface PackingLine {
  row: number;
  number: string;
  name: string;
  packed: string;
  isWhole: boolean;
}

/// A package, or so much of a line in the package before it that is one level higher.
export interface PackingPlace {
  level: number;
  package: number;
  /// 0 for a package.
  line: number;
  serial: string;
  name: string;
  quantity: string;
}

export interface Packing {
  summary: string;
  lines: PackingLine[];
  places: PackingPlace[];
}

export type Event =
  | Changes
  | Box
  | Question
  | ({ event: "steps" } & Steps)
  | { event: "told"; text: string }
  | { event: "line"; text: string }
  | { event: "proposals"; on: string; text: string; rows: Row[] }
  | { event: "note"; on: string; text: string; task?: string }
  | { event: "typed"; on: string; text: string }
  | { event: "switch"; task: string; isOn: boolean }
  | ({ event: "works" } & Work)
  | { event: "rests" }
  | { event: "startAgain" }
  | { event: "begins"; opens: boolean }
  | { event: "saved"; path: string }
  | { event: "sheet"; svg: string }
  | { event: "print"; title: string; sheets: string[] }
  | { event: "file"; name: string; text: string }
  | { event: "mayBring"; form: string; may: boolean }
  | { event: "chooseDocument" }
  | { event: "showPacking" }
  | { event: "modal" | "hidden"; form: string; caption?: string }
  | { event: "changed"; property: string }
  | { event: "end" };

export interface Closing {
  ok: boolean;
  id?: number;
  value?: unknown;
  /// A procedure's arguments as it left them.
  args?: unknown[];
  error?: string;
}

export type Output = Event | Closing;
