// <awizo-wysylki>: the editor as an element of a page.

import * as deskWords from "#words";
import { ControlElement } from "./control_element.ts";
import { CoreClient, type Line, type Listener } from "./core_client.ts";
import { focusable, holdOpen, make, plainWords } from "./dom.ts";
import { dateForm } from "./date_form.ts";
import { DeskStrip } from "./desk_strip.ts";
import { Commands } from "./commands.ts";
import type {
  Box, Changes, Closing, Command, CommandMenu, ControlFacts, Event as CoreEvent, FormFacts, Packing, Question, Standing,
  TypedInto, Work,
} from "./facts.ts";
import { extraButtons, firstExtra, isExtra } from "./extra_buttons.ts";
import type { Host } from "./face.ts";
import { FormView } from "./form_view.ts";
import { Guide } from "./guide.ts";
import { dialogs, mainForm, startPage } from "./layouts.ts";
import { askToKeepFiles, computerButton, fetchFile, handOut, handOutTable } from "./own_disk.ts";
import { PackingPane } from "./packing_pane.ts";
import { printSheets } from "./sheets.ts";
import { localeOf, startOf } from "./start.ts";
import { styles } from "./styles.ts";
import { KeysAhead } from "./keys_ahead.ts";
import { ListFace } from "./list_face.ts";
import { TableFace } from "./table_face.ts";
import { TypingWatch } from "./typing_watch.ts";
import { WorkBox } from "./work_box.ts";

const mainName = "AwizoWysylki";
const startName = "StartPage";
const papersName = "PapersDialog";
const numbersName = "NumberRangeDialog";
const linesTable = "grdPozycje";
const tables = [linesTable, "grdOpakowania"];
/// A column of both tables that is always seen: the name.
const nameColumns: Record<string, number> = { grdPozycje: 2, grdOpakowania: 3 };
/// Tab, Enter, Escape, Insert, F2.
const leadingKeys = new Set([9, 13, 27, 45, 113]);
/// The whole document is looked at for how it stands: not at each key.
const standingDelay = 100;
const answers: Record<Box["buttons"], [string, string][]> = {
  OK: [["OK", "ОК"]],
  YesNo: [["Yes", "Да"], ["No", "Нет"]],
};

/// The page itself shows the guide.
function isGuide(command: Pick<Command, "task">): boolean {
  return command.task === "showGuide";
}

function isStep(command: Command): boolean {
  return command.task === "takeBack" || command.task === "doAgain";
}

function isSearch(command: Command): boolean {
  return command.task === "findLine" || command.task === "findAgain";
}

/// It leads to the buttons that no form has.
function isWayToExtras(event: KeyboardEvent): boolean {
  return event.key === "F10" && !event.ctrlKey && !event.shiftKey && !event.altKey;
}

/// What is done may bring the focus elsewhere.
function leads(line: Line): boolean {
  return line["do"] === "click" || (line["do"] === "key" && leadingKeys.has(Number(line["code"])));
}

function isCopy(event: KeyboardEvent): boolean {
  return event.ctrlKey && !event.shiftKey && !event.altKey && event.code === "KeyC";
}

export class AwizoWysylki extends ControlElement {
  private core: CoreClient | undefined;
  private readonly root = this.attachShadow({ mode: "open" });
  private readonly views = new Map<string, FormView>();
  private readonly kinds: Record<string, ControlFacts> = {};
  private readonly forms: Record<string, FormFacts> = {};
  private readonly shown: { name: string; element: HTMLDialogElement }[] = [];
  private beginsAfterAnswer = false;
  private box: HTMLDialogElement | undefined;
  /// What had the focus when the box opened, and keeps it whatever the model says.
  private beforeBox: HTMLElement | null = null;
  private readonly commands = new Commands(mainName);
  private readonly strip = new DeskStrip({
    choose: (command) => void this.choose(command),
    stateOf: ({ on }) => {
      const button = on === undefined ? {} : this.kinds[on];
      if (button?.visible === false) return "hidden";
      return button?.enabled === false ? "disabled" : "shown";
    },
  });
  private readonly guide = new Guide(this.root, () => this.followModel());
  /// The form in which a file of the user's computer may be brought.
  private bringsTo: string | undefined;
  /// The current line in words, below the table of lines.
  private readonly lineWords = make("output", { class: "line" });
  private readonly workBox = new WorkBox(this.root, () => void this.closingOf({ do: "stop" }));
  private readonly packing = new PackingPane({
    read: async () => {
      const closing = await this.closingOf({ get: "packing" });
      return closing.ok ? (closing.value as Packing) : undefined;
    },
    pack: (lines, packageRow) => this.closingOf({ do: "packRest", lines, package: packageRow }),
    goTo: async (table, row) => {
      this.modelsFocus()?.focus();
      await this.closingOf({ do: "cell", on: table, row, col: nameColumns[table] });
    },
    scanKey: async (code, packageRow) =>
      (await this.closingOf({ do: "scanKey", code, ...(packageRow === undefined ? {} : { package: packageRow }) })).ok,
    leave: () => this.leaveExtras(),
  });
  private work: Work | undefined;
  /// Tells what is being done where all else is inert.
  private readonly heard = make("output", { class: "heard", lang: "ru" });
  private isUnsent = false;
  private hasAskedToKeep = false;
  private startsAgain = false;
  private typedInto: TypedInto = { fields: [], tables: [], lists: [] };
  private standingTimer: ReturnType<typeof setTimeout> | undefined;
  private readonly typing = new TypingWatch(this.root);
  private readonly ahead = new KeysAhead(
    this.root, () => this.closingOf({ get: "focus" }), () => this.work !== undefined);
  /// Where the user has gone to another control and the core doesn't know it yet: what it says of the
  /// focus there is old.
  private readonly ways = new Set<{ view: FormView }>();

  constructor() {
    super();
    this.root.adoptedStyleSheets = [styles()];
    this.root.addEventListener("keydown", (event) => this.pressKey(event as KeyboardEvent));
    this.root.addEventListener("mousedown", (event) => this.takeClick(event as MouseEvent));
    this.root.addEventListener("focusin", (event) => this.followUser(event.target as Element));
  }

  /// The browser asks the user before unsent work is left.
  private readonly askBeforeLeaving = (event: Event): void => {
    if (this.isUnsent || this.work?.asks === true) event.preventDefault();
  };

  connectedCallback(): void {
    this.core = new CoreClient(() => startOf(this), this.listener());
    addEventListener("beforeunload", this.askBeforeLeaving);
    this.root.replaceChildren(make("p", { class: "waiting", role: "status" }, ["Редактор запускается…"]));
    this.takeAttributes();
    void this.begin(this.core);
  }

  disconnectedCallback(): void {
    removeEventListener("beforeunload", this.askBeforeLeaving);
    this.core?.end();
    this.core = undefined;
    this.forget();
  }

  /// What was known of the core that has ended: the next one begins anew.
  private forget(): void {
    this.views.clear();
    this.ways.clear();
    this.ahead.forget();
    for (const known of [this.kinds, this.forms]) for (const name of Object.keys(known)) delete known[name];
    this.shown.length = 0;
    this.box = undefined;
    this.beforeBox = null;
    this.strip.clear();
    this.packing.clear();
    this.guide.close();
    this.bringsTo = undefined;
    this.lineWords.textContent = "";
    this.workBox.hide();
    this.beginsAfterAnswer = false;
    this.work = undefined;
    this.isUnsent = false;
    this.startsAgain = false;
    clearTimeout(this.standingTimer);
    this.standingTimer = undefined;
    this.forgetProperties();
  }

  protected override closingOf(line: Line): Promise<Closing> {
    if (this.core === undefined) return Promise.resolve({ ok: false, error: "The element has no control." });
    return this.core.say(line);
  }

  /// `opens`: the user is asked for a file to open.
  private async begin(core: CoreClient, opens = false): Promise<void> {
    const commands = Promise.all([
      core.say({ get: "commands" }), core.say({ get: "dialogCommands" }), core.say({ get: "typedInto" }),
    ]);
    const properties = this.readProperties();
    const [menus, ofDialogs, typedInto] = await commands;
    if (this.core !== core) return;
    // Not sooner: the first changes make the forms, of commands and fields that are known by then. After a
    // question of the start the core answers all that it was told before at once.
    for (const what of ["followDesk", "followSteps", "followFiles"]) void core.say({ do: what });
    const following = core.say({ do: "subscribe" });
    // Work that was gone on with is shown already.
    const showing = core.say({ do: "showUnlessShown" });
    const shownMenus = (menus.value ?? []) as CommandMenu[];
    this.commands.take([...shownMenus.flatMap((menu) => menu.commands), ...((ofDialogs.value ?? []) as Command[])]);
    // It may be the start page's turn, which has no dialogs.
    if (!ofDialogs.ok) return;
    this.strip.showMenus(shownMenus);
    this.typedInto = typedInto.value as TypedInto;
    await properties;
    const followed = await following;
    if (this.core !== core) return;
    // A box in which work that is gone on with stood is answered before anything else.
    this.beginsAfterAnswer = !followed.ok;
    if (this.beginsAfterAnswer) return;
    await showing;
    if (opens && this.core === core) void this.choose({ on: "btnWczytaj" });
  }

  private listener(): Listener {
    return {
      event: (event) => this.take(event),
      kept: (name, value) => this.keep(name, value),
      complaint: (text) => console.warn(text),
      ended: (words) => (this.startsAgain ? this.startNow() : this.end(words)),
    };
  }

  private take(event: CoreEvent): void {
    switch (event.event) {
      case "changes":
        return this.takeChanges(event);
      case "message":
        return this.openBox(event);
      case "question":
        return this.openQuestion(event);
      case "steps":
        return this.strip.showSteps(event);
      case "saved":
        this.keepFiles();
        void handOut(event.path);
        return;
      case "sheet":
        return this.views.get(papersName)?.showSheet(event.svg);
      case "print":
        return printSheets(this.root, event.title, event.sheets, () => void this.closingOf({ do: "printed" }));
      case "file":
        return handOutTable(event.name, event.text);
      case "showPacking":
        return this.packing.toggle();
      case "mayBring":
        this.bringsTo = event.may ? event.form : undefined;
        return;
      case "chooseDocument":
        return fetchFile(this.strip.element, (name, path) => this.closingOf({ do: "showPapersOf", path, name }));
      case "told":
        return this.strip.tell(event.text);
      case "line":
        this.lineWords.textContent = event.text;
        this.lineWords.title = event.text;
        return;
      case "proposals":
        for (const view of this.views.values()) {
          const list = view.face(event.on);
          if (list instanceof ListFace) list.propose(event.text, event.rows);
        }
        return;
      case "note":
        for (const view of this.views.values()) view.face(event.on)?.showNote(event.text, this.taskButton(event.task));
        return;
      case "typed":
        return this.top()?.face(event.on)?.showTyped(event.text);
      case "switch":
        return this.strip.showSwitch(event.task, event.isOn);
      case "works":
        this.work = event;
        this.ahead.forget();
        this.workBox.show(event);
        this.holdStill();
        return this.strip.tell(event.what);
      case "rests":
        this.work = undefined;
        this.workBox.hide();
        this.holdStill();
        this.followModel();
        return this.showStandingSoon();
      case "begins":
        // The start page and its folder dialog are no more.
        this.forget();
        if (this.core !== undefined) void this.begin(this.core, event.opens);
        return;
      case "startAgain":
        this.startsAgain = true;
        this.core?.finish();
        return;
      case "changed":
        void this.tellChange(event.property);
        return;
      case "end":
        return this.end("Редактор не может работать.");
      default:
        return;
    }
  }

  private takeChanges(changes: Changes): void {
    for (const [name, facts] of Object.entries(changes.controls ?? {})) {
      this.kinds[name] = { ...this.kinds[name], ...facts };
    }
    if (this.views.size === 0) this.makeViews();
    for (const [name, facts] of Object.entries(changes.forms ?? {})) this.takeForm(name, facts);
    for (const [name, facts] of Object.entries(changes.controls ?? {})) {
      for (const view of this.views.values()) view.showControl(name, facts);
    }
    this.followModel();
    this.showStandingSoon();
    if (tables.some((table) => changes.controls?.[table] !== undefined)) this.packing.changed();
  }

  /// While work lasts that nothing can stop, what the user does would be lost: nothing can be done.
  private holdStill(): void {
    const isStill = this.work !== undefined && !this.work.mayStop;
    for (const child of this.root.children) {
      (child as HTMLElement).inert = isStill && child !== this.box && child !== this.heard;
    }
    this.heard.textContent = isStill ? this.work!.what : "";
  }

  private showStandingSoon(): void {
    this.standingTimer ??= setTimeout(() => void this.showStanding(), standingDelay);
  }

  private async showStanding(): Promise<void> {
    const closing = await this.closingOf({ get: "standing" });
    this.standingTimer = undefined;
    if (!closing.ok) return;
    const standing = closing.value as Standing;
    this.isUnsent = standing.isUnsent;
    this.strip.showStanding(standing);
    if (this.hasAttribute("titles-page")) document.title = standing.title;
  }

  private takeForm(name: string, facts: FormFacts): void {
    const whole = { ...this.forms[name], ...facts };
    this.forms[name] = whole;
    if (facts.shown === true) this.openForm(name, whole);
    if (facts.shown === false) this.closeForm(name);
    this.views.get(name)?.showForm(whole);
    const dialog = this.shown.find((shown) => shown.name === name);
    const title = dialog?.element.querySelector("h2");
    if (title) title.textContent = whole.caption ?? "";
  }

  /// All at once: each hears of every change from the first on.
  private makeViews(): void {
    const dates = dateForm(localeOf(this));
    for (const [name, layout] of Object.entries({ [mainName]: mainForm, [startName]: startPage, ...dialogs })) {
      const view = new FormView(name, layout, this.kinds, this.host(), this.commands, dates, this.typedInto);
      for (const [control, facts] of Object.entries(this.kinds)) view.showControl(control, facts);
      this.views.set(name, view);
    }
    this.views.get(mainName)?.face(linesTable)?.element.after(this.lineWords);
  }

  private openForm(name: string, facts: FormFacts): void {
    const view = this.views.get(name);
    if (view === undefined) return;
    if (name === startName) {
      this.root.replaceChildren(make("main", { lang: "ru" }, [
        make("h1", {}, [facts.caption ?? ""]), view.element, this.fromComputer([this.guideButton()]),
      ]), this.heard);
      return this.holdStill();
    }
    if (name === mainName) {
      this.root.replaceChildren(make("main", { lang: "ru" }, [
        this.strip.element, make("div", { class: "desk" }, [view.element, this.packing.element]),
      ]), this.heard);
      return this.holdStill();
    }
    const title = make("h2", { id: `title-${name}` });
    const closer = make("button", { type: "button", class: "closer", "aria-label": "Закрыть" }, ["×"]);
    const element = make("dialog", { lang: "ru", "aria-labelledby": `title-${name}` }, [
      make("div", { class: "title" }, [title, closer]), view.element,
    ]);
    if (this.bringsTo === name) element.append(this.fromComputer());
    closer.addEventListener("click", () => void this.closingOf({ do: "close", on: name }));
    holdOpen(element, () => void this.host().act(view.focus, { do: "key", code: 27, shift: false }));
    this.root.append(element);
    element.showModal();
    this.shown.push({ name, element });
  }

  /// For what words beside a field ask.
  private taskButton(task: string | undefined): HTMLElement | undefined {
    const command = task === undefined ? undefined : this.commands.task(task);
    if (command === undefined) return undefined;
    const button = make("button", { type: "button", "data-task": task }, [command.words]);
    button.addEventListener("mousedown", (event) => event.preventDefault());
    button.addEventListener("click", () => void this.choose({ task: task! }));
    return extraButtons([button]);
  }

  private fromComputer(others: HTMLElement[] = []): HTMLElement {
    return computerButton((name, from) => this.closingOf({ do: "bring", name, from }), others);
  }

  private guideButton(): HTMLElement {
    const button = make("button", { type: "button", title: "F1" }, [deskWords.guideTitle]);
    button.addEventListener("click", () => void this.openGuide());
    return button;
  }

  private async openGuide(): Promise<void> {
    this.finishTyping();
    const { core } = this;
    const closing = await this.closingOf({ get: "guideChapter" });
    // The element may have left the page, and even be back.
    if (this.core !== core || !this.isConnected) return;
    await this.guide.open(closing.ok ? String(closing.value) : "");
  }

  /// The user has just laid something down there, and knows why a browser asks. Once is enough.
  private keepFiles(): void {
    if (!this.hasAskedToKeep) askToKeepFiles();
    this.hasAskedToKeep = true;
  }

  private closeForm(name: string): void {
    const at = this.shown.findIndex((shown) => shown.name === name);
    if (at < 0) return;
    this.shown.splice(at, 1)[0]!.element.remove();
    if (name === numbersName) this.keepFiles();
  }

  private openBox(box: Box): void {
    this.ask(box.title, box.text, box.icon, answers[box.buttons], box.buttons === "OK" ? "OK" : undefined, box.advice);
  }

  private openQuestion(question: Question): void {
    const choices = question.choices.map(({ choice, words }): [string, string] => [choice, plainWords(words)]);
    this.ask(deskWords.boxTitle, question.text, question.icon, choices, question.harmless);
  }

  /// `harmless`: the answer that Escape gives; none where the user must choose.
  private ask(
    title: string, text: string, icon: string, choices: [string, string][], harmless?: string, advice?: string,
  ): void {
    const buttons = choices.map(([answer, words]) => {
      const button = make("button", { type: "button", "data-answer": answer }, [words]);
      button.addEventListener("click", () => this.answer(answer));
      return button;
    });
    const element = make("dialog", { role: "alertdialog", class: `box ${icon}`, lang: "ru", "aria-labelledby": "box-title", "aria-describedby": "box-text box-advice" }, [
      make("div", { class: "title" }, [make("h2", { id: "box-title" }, [title])]),
      make("p", { id: "box-text" }, [text.replaceAll("\r\n", "\n").replaceAll("\r", "\n")]),
      ...(advice === undefined ? [] : [make("p", { id: "box-advice" }, [advice])]),
      make("div", { class: "beside buttons" }, buttons),
    ]);
    holdOpen(element, () => harmless !== undefined && this.answer(harmless));
    this.box = element;
    this.ahead.forget();
    this.beforeBox = this.keeper();
    this.root.append(element);
    element.showModal();
    const first = choices.findIndex(([answer]) => answer === harmless);
    buttons[Math.max(first, 0)]!.focus();
  }

  private answer(answer: string): void {
    this.box?.remove();
    this.box = undefined;
    this.beforeBox?.focus();
    this.beforeBox = null;
    void this.closingOf({ answer }).then(() => this.followModel());
    if (this.beginsAfterAnswer && this.core !== undefined) void this.begin(this.core);
  }

  /// The user has chosen a command.
  private async choose(command: Pick<Command, "on" | "task">): Promise<void> {
    if (isGuide(command)) return this.openGuide();
    if (this.box !== undefined || this.work !== undefined) return;
    this.finishTyping();
    this.typing.forget();
    this.reveal(command.on);
    await this.closingOf({ do: "command", ...(command.on === undefined ? { task: command.task } : { on: command.on }) });
    // Who works in the pane stays there.
    if (!this.packing.hasFocus) this.leaveExtras();
  }

  /// What a command acts on must be seen.
  private reveal(button: string | undefined): void {
    const command = button === undefined ? undefined : this.commands.of(button);
    if (command?.onCurrentRow !== true || command.place === null) return;
    const table = this.top()?.face(command.place);
    if (table instanceof TableFace) table.reveal();
  }

  /// A new core in the place of the one that has ended.
  private startNow(): void {
    this.startsAgain = false;
    this.disconnectedCallback();
    this.connectedCallback();
  }

  private async copy(): Promise<void> {
    const closing = await this.closingOf({ get: "markedText" });
    if (closing.ok && closing.value !== "") await navigator.clipboard.writeText(String(closing.value));
  }

  private host(): Host {
    return {
      act: async (on, line) => {
        if (line["do"] === "click") this.reveal(on);
        this.finishTyping(on);
        const taken = this.closingOf({ ...line, on });
        if (leads(line)) void this.ahead.wait();
        // What a user can't do now changes nothing.
        if (!(await taken).ok) this.followModel();
      },
    };
  }

  /// The view that the user acts on.
  private top(): FormView | undefined {
    const main = this.forms[startName]?.shown === true ? startName : mainName;
    return this.views.get(this.shown.at(-1)?.name ?? main);
  }

  private followModel(): void {
    if (this.box !== undefined || this.guide.isOpen || !this.isConnected || this.keeper() !== null) return;
    const top = this.top();
    if (top !== undefined && this.isUnderWay(top)) return;
    const target = this.modelsFocus();
    if (target !== null && this.root.activeElement !== target) target.focus();
  }

  private modelsFocus(): HTMLElement | null {
    const top = this.top();
    const face = top?.face(top.focus);
    return face === undefined ? null : focusable(face.element);
  }

  /// What has the focus and keeps it, whatever the model says: what no form has, and what else the page has.
  private keeper(): HTMLElement | null {
    const active = this.root.activeElement as HTMLElement | null;
    if (active !== null) return isExtra(active) ? active : null;
    const other = document.activeElement as HTMLElement | null;
    return other === document.body || other === this ? null : other;
  }

  /// A click that moves no focus by itself brings it to the form, where the model says: only from there
  /// do keys reach what was clicked.
  private takeClick(event: MouseEvent): void {
    const isOfForm = (event.target as Element).closest("[data-name]") !== null;
    const isInForm = this.root.activeElement !== null && !isExtra(this.root.activeElement);
    if (event.isTrusted && event.defaultPrevented && isOfForm && !isInForm) this.modelsFocus()?.focus();
  }

  /// What is typed in another control is whole before anything is done with this one.
  private finishTyping(on?: string): void {
    const name = this.root.activeElement?.closest<HTMLElement>("[data-name]")?.dataset["name"];
    if (name !== undefined && name !== on) this.top()?.face(name)?.finish();
  }

  private visitExtras(): void {
    const within = this.shown.at(-1)?.element ?? this.root.querySelector("main");
    if (isExtra(this.root.activeElement)) this.leaveExtras();
    else if (within !== null) firstExtra(within)?.focus();
  }

  private leaveExtras(): void {
    if (this.box === undefined && isExtra(this.root.activeElement)) this.modelsFocus()?.focus();
    this.followModel();
  }

  /// The user has put the focus somewhere: the model says whether it stays there.
  private followUser(target: Element): void {
    const name = target.closest<HTMLElement>("[data-name]")?.dataset["name"];
    const top = this.top();
    if (name === undefined || top === undefined || top.face(name) === undefined) return;
    if (name !== top.focus || this.isUnderWay(top)) void this.tellOfWay(top, name);
  }

  private isUnderWay(view: FormView): boolean {
    return [...this.ways].some((way) => way.view === view);
  }

  private async tellOfWay(view: FormView, name: string): Promise<void> {
    const way = { view };
    this.ways.add(way);
    await this.host().act(name, { do: "focus" });
    this.ways.delete(way);
    this.followModel();
  }

  private pressKey(event: KeyboardEvent): void {
    const top = this.top();
    if (top === undefined) return;
    const command = this.commands.at(event, top.name);
    const isShut = this.guide.isOpen || this.work !== undefined || (this.box !== undefined && command?.inDialogs !== true);
    if (isShut) {
      // What the editor can't do now isn't the browser's either, such as its own help and saving. But its
      // search finds in the guide.
      if (command !== undefined && !(this.guide.isOpen && isSearch(command))) event.preventDefault();
      return;
    }
    const isFromExtra = isExtra(event.target as Element);
    if (isWayToExtras(event) || (isFromExtra && event.key === "Escape")) {
      event.preventDefault();
      return this.visitExtras();
    }
    if (command !== undefined && isStep(command) && this.typing.ownsKey(event)) return;
    if (command !== undefined) {
      event.preventDefault();
      event.stopPropagation();
      void this.choose(command);
      return void this.ahead.wait();
    }
    if (isCopy(event) && top.face(top.focus) instanceof TableFace) {
      event.preventDefault();
      return void this.copy();
    }
    const isButton = (event.target as Element).closest("button") !== null;
    const isModels = event.key === "Tab" || (event.key === "Enter" && !isButton) || event.key === "Escape";
    // From the buttons beside a form Tab leads the browser's way; with Shift out of the element.
    if (!isModels || top.focus === "" || isFromExtra) return;
    event.preventDefault();
    void this.host().act(top.focus, { do: "key", code: event.keyCode, shift: event.shiftKey });
  }

  private keep(name: string, value: string): void {
    try {
      localStorage.setItem(`awizo/${name}`, value);
    } catch {
      // The browser keeps nothing: the next session begins with the element's folder.
    }
  }

  private end(words?: string): void {
    this.core?.end();
    this.core = undefined;
    this.work = undefined;
    this.isUnsent = false;
    if (words === undefined) return;
    const again = make("button", { type: "button" }, ["Начать заново"]);
    again.addEventListener("click", () => this.connectedCallback());
    this.forget();
    this.root.replaceChildren(make("div", { class: "stack dead", role: "alert", lang: "ru" }, [
      make("p", {}, [plainWords(words)]), again,
    ]));
  }
}

customElements.define("awizo-wysylki", AwizoWysylki);
