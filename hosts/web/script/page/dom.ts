type Children = (Node | string)[];

/// A new element with these attributes and children. An attribute that is false or nothing is left
/// out.
export function make<Name extends keyof HTMLElementTagNameMap>(
  name: Name, attributes: Record<string, string | number | boolean | undefined> = {}, children: Children = [],
): HTMLElementTagNameMap[Name] {
  const element = document.createElement(name);
  for (const [attribute, value] of Object.entries(attributes)) {
    if (value !== undefined && value !== false) element.setAttribute(attribute, value === true ? "" : String(value));
  }
  element.append(...children);
  return element;
}

/// Words without the mark of their mnemonic letter.
export function plainWords(words: string): string {
  return words.replace(/&(.)/g, "$1").trim();
}

const sensible = "input, select, button, [tabindex]";

/// The part of a face that takes the focus.
export function focusable(element: Element): HTMLElement | null {
  return element.matches(sensible) ? (element as HTMLElement) : element.querySelector<HTMLElement>(sensible);
}

/// `leave` is called when the user wants to leave the dialog; whether it closes is the owner's to say. A browser
/// asks the page only once for each thing that the user does, and closes it the next time: then it opens again.
export function holdOpen(dialog: HTMLDialogElement, leave: () => void): void {
  dialog.addEventListener("cancel", (event) => {
    // A file field in the dialog is left so too.
    if (event.target !== dialog) return;
    event.preventDefault();
    leave();
  });
  dialog.addEventListener("close", () => {
    if (!dialog.isConnected || dialog.open) return;
    dialog.showModal();
    leave();
  });
}
