// A menu of the desk: a button, and under it the commands.

import { make, plainWords } from "./dom.ts";
import type { Command } from "./facts.ts";

export interface MenuHost {
  choose(command: Command): void;
  /// How it is now with the button that the command presses.
  stateOf(command: Command): "shown" | "disabled" | "hidden";
}

export class Menu {
  readonly element: HTMLElement;
  private readonly button: HTMLButtonElement;
  private readonly list: HTMLElement;
  /// What had the focus before.
  private before: HTMLElement | null = null;
  private readonly items: { item: HTMLButtonElement; command: Command }[];

  /// `step`: to the menu that many places further.
  constructor(heading: string, commands: Command[], private readonly host: MenuHost, private readonly step: (by: number) => void) {
    const words = plainWords(heading);
    this.items = commands.map((command) => ({ item: this.makeItem(command), command }));
    const parts = this.items.flatMap(({ item, command }, at) => {
      const isFirst = at > 0 && commands[at - 1]!.group !== command.group;
      return isFirst ? [make("div", { role: "separator" }), item] : [item];
    });
    this.button = make("button", { type: "button", "aria-haspopup": "menu", "aria-expanded": "false" }, [words]);
    this.list = make("div", { role: "menu", "aria-label": words, hidden: true }, parts);
    this.element = make("div", { class: "menu" }, [this.button, this.list]);
    // The focus moves by the model alone.
    this.element.addEventListener("mousedown", (event) => event.preventDefault());
    this.button.addEventListener("click", () => (this.isOpen ? this.close() : this.open()));
    this.element.addEventListener("keydown", (event) => this.pressKey(event));
    this.element.addEventListener("focusout", (event) => {
      if (!this.element.contains(event.relatedTarget as Node | null)) this.close();
    });
  }

  open(): void {
    for (const { item, command } of this.items) {
      const state = this.host.stateOf(command);
      item.hidden = state === "hidden";
      item.disabled = state !== "shown";
    }
    const active = (this.element.getRootNode() as ShadowRoot).activeElement as HTMLElement | null;
    this.before = active?.closest(".menu") ? this.button : active;
    this.list.hidden = false;
    this.button.setAttribute("aria-expanded", "true");
    this.reachable()[0]?.focus();
  }

  private get isOpen(): boolean {
    return !this.list.hidden;
  }

  private leave(): void {
    (this.before ?? this.button).focus();
    this.close();
  }

  private close(): void {
    this.list.hidden = true;
    this.button.setAttribute("aria-expanded", "false");
  }

  private makeItem(command: Command): HTMLButtonElement {
    const key = make("span", { class: "key", "aria-hidden": "true" }, [command.key]);
    const item = make("button", {
      type: "button", role: command.isOn === undefined ? "menuitem" : "menuitemcheckbox", "aria-checked": command.isOn?.toString(), tabindex: -1, title: command.tip || undefined,
      "data-task": command.task, "data-command": command.on, "aria-keyshortcuts": command.key.replace("Ctrl", "Control") || undefined,
    }, [make("span", {}, [command.words]), key]);
    item.addEventListener("click", () => {
      this.leave();
      this.host.choose(command);
    });
    return item;
  }

  private reachable(): HTMLElement[] {
    return this.items.flatMap(({ item }) => (item.disabled ? [] : [item]));
  }

  private pressKey(event: KeyboardEvent): void {
    if (event.ctrlKey || event.altKey || event.shiftKey || !this.takesKey(event.key)) return;
    event.preventDefault();
    event.stopPropagation();
  }

  private takesKey(key: string): boolean {
    const items = this.reachable();
    const at = items.findIndex((item) => item.matches(":focus"));
    switch (key) {
      case "ArrowDown":
        if (this.isOpen) items[(at + 1) % items.length]?.focus();
        else this.open();
        return true;
      case "ArrowUp":
        if (!this.isOpen) this.open();
        items.at(this.isOpen && at > 0 ? at - 1 : -1)?.focus();
        return true;
      case "Home":
      case "End":
        if (this.isOpen) items.at(key === "Home" ? 0 : -1)?.focus();
        return this.isOpen;
      case "ArrowLeft":
      case "ArrowRight":
        if (!this.isOpen) return false;
        this.step(key === "ArrowRight" ? 1 : -1);
        return true;
      case "Escape":
        if (!this.isOpen) return false;
        this.leave();
        return true;
      default:
        return false;
    }
  }
}
