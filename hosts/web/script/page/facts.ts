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
  fixed?: number;
  cols?: number;
  row?: number;
  col?: number;
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

export type Event =
  | Changes
  | Box
  | Question
  | ({ event: "steps" } & Steps)
  | { event: "told"; text: string }
  | { event: "saved"; path: string }
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
