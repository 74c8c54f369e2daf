// What stands over the main form: the document's title, the commands that no button of a form has,
// and words on what was done last.

import { make, plainWords } from "./dom.ts";
import { extraButtons } from "./extra_buttons.ts";
import type { Command, Standing, Steps } from "./facts.ts";

type Step = keyof Steps;

/// What is wanted seldom stands last.
const seldom = ["showNumbers", "startAgain", "showAbout"];

function isStep(task: string): task is Step {
  return task === "takeBack" || task === "doAgain";
}

export class DeskStrip {
  readonly element: HTMLElement;
  private readonly title = make("h1");
  private readonly told = make("output", { "aria-live": "polite" });
  private readonly buttons = extraButtons();
  private readonly steps = new Map<Step, { button: HTMLButtonElement; command: Command }>();

  constructor(private readonly go: (task: string) => void) {
    this.buttons.classList.add("tasks");
    this.element = make("div", { class: "strip" }, [this.title, this.buttons, this.told]);
  }

  showCommands(commands: Command[]): void {
    this.steps.clear();
    const tasks = commands.filter((one) => one.task !== undefined);
    tasks.sort((one, other) => seldom.indexOf(one.task!) - seldom.indexOf(other.task!));
    this.buttons.replaceChildren(...tasks.map((one) => this.button(one)));
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
    this.buttons.querySelector(`[data-task="${task}"]`)?.setAttribute("aria-pressed", String(isOn));
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

  private button(command: Command): HTMLButtonElement {
    const task = command.task!;
    const button = make("button", { type: "button", title: command.tip || undefined, "aria-pressed": command.isOn?.toString() }, [command.words]);
    button.dataset[isStep(task) ? "step" : "task"] = task;
    if (isStep(task)) this.steps.set(task, { button, command });
    // The focus moves by the model alone.
    button.addEventListener("mousedown", (event) => event.preventDefault());
    button.addEventListener("click", () => this.go(task));
    return button;
  }
}
