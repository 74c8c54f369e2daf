// The desk's commands, by their buttons and their keys.

import type { Command } from "./facts.ts";

/// The form of a control, by the name that the core calls the control.
function formOf(name: string, mainForm: string): string {
  const dot = name.indexOf(".");
  return dot < 0 ? mainForm : name.slice(0, dot);
}

export class Commands {
  private all: Command[] = [];

  constructor(private readonly mainForm: string) {}

  take(commands: Command[]): void {
    this.all = commands;
  }

  of(button: string): Command | undefined {
    return this.all.find((one) => one.on === button);
  }

  task(name: string): Command | undefined {
    return this.all.find((one) => one.task === name);
  }

  /// The command of the key in this form. Those of a table alone are the core's to find.
  at(event: KeyboardEvent, form: string): Command | undefined {
    if (event.altKey || event.metaKey) return undefined;
    return this.all.find((one) =>
      one.keys.some((key) => key.code === event.keyCode && key.control === event.ctrlKey && key.shift === event.shiftKey) &&
      one.place === null && (one.inDialogs || formOf(one.on ?? "", this.mainForm) === form));
  }
}
