// What stands over the main form: the document's title, the commands in menus, the steps that can be
// taken back, and words on what was done last.

import { make, plainWords } from "./dom.ts";
import { extraButtons } from "./extra_buttons.ts";
import type { Command, CommandMenu, Standing, Steps } from "./facts.ts";
import { Menu, type MenuHost } from "./menu.ts";

type Step = keyof Steps;

function isStep(task: string | undefined): task is Step {
  return task === "takeBack" || task === "doAgain";
}

export class DeskStrip {
  readonly element: HTMLElement;
  private readonly title = make("h1");
  private readonly told = make("output", { "aria-live": "polite" });
  private readonly buttons = extraButtons();
  private readonly steps = new Map<Step, { button: HTMLButtonElement; command: Command }>();

  constructor(private readonly host: MenuHost) {
    this.buttons.classList.add("tasks");
    this.element = make("div", { class: "strip" }, [this.title, this.buttons, this.told]);
  }

  showMenus(menus: CommandMenu[]): void {
    this.steps.clear();
    const shown: Menu[] = [];
    for (const { heading, commands } of menus) {
      const place = shown.length;
      const others = commands.filter((one) => !isStep(one.task));
      shown.push(new Menu(heading, others, this.host, (by) => shown.at((place + by) % shown.length)?.open()));
    }
    const steps = menus.flatMap((menu) => menu.commands).filter((one) => isStep(one.task));
    this.buttons.replaceChildren(...shown.map((menu) => menu.element), ...steps.map((one) => this.stepButton(one)));
    this.showSteps({ takeBack: null, doAgain: null });
  }

  showSteps(steps: Steps): void {
    for (const [step, { button, command }] of this.steps) {
      button.textContent = plainWords(steps[step] ?? command.words);
      button.title = command.tip.replace(command.words, button.textContent);
      button.disabled = steps[step] === null;
    }
  }

  showSwitch(task: string, isOn: boolean): void {
    this.buttons.querySelector(`[data-task="${task}"]`)?.setAttribute("aria-checked", String(isOn));
  }

  showStanding(standing: Standing): void {
    this.title.textContent = standing.title;
    this.tell(standing.status);
  }

  tell(text: string): void {
    if (this.told.textContent !== text) this.told.textContent = text;
  }

  clear(): void {
    this.title.textContent = "";
    this.tell("");
    this.buttons.replaceChildren();
  }

  private stepButton(command: Command): HTMLButtonElement {
    const button = make("button", { type: "button", "data-step": command.task });
    this.steps.set(command.task as Step, { button, command });
    // The focus moves by the model alone.
    button.addEventListener("mousedown", (event) => event.preventDefault());
    button.addEventListener("click", () => this.host.choose(command));
    return button;
  }
}
