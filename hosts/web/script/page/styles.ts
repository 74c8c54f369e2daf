// The element's look. Its colours and its font are custom properties, which a page may set.

const text = /* css */ `
:host {
  --awizo-font: system-ui, sans-serif;
  --awizo-accent: light-dark(#0b5cad, #7db7f2);
  --awizo-paper: light-dark(#ffffff, #1b1e22);
  --awizo-ground: light-dark(#f4f5f7, #121417);
  --awizo-ink: light-dark(#1c2024, #e8eaed);
  --awizo-pale: light-dark(#5a6270, #a5adb8);
  --awizo-line: light-dark(#cfd4db, #3c434c);
  display: block; color-scheme: light dark; font: 15px/1.4 var(--awizo-font);
  color: var(--awizo-ink); background: var(--awizo-ground); container-type: inline-size;
}
* { box-sizing: border-box; }
[hidden] { display: none !important; }
main { padding: 12px; }
main > h1 { margin-bottom: 10px; }
main > .beside { margin-top: 12px; }
.extras { display: flex; flex-wrap: wrap; gap: 10px; }
.heard { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
.refusal { margin: 0; flex-basis: 100%; }
.stack { display: flex; flex-direction: column; gap: 10px; min-width: 0; }
.beside { display: flex; flex-wrap: wrap; gap: 10px 14px; align-items: end; }
.beside:has(> fieldset), .beside:has(> .stack) { align-items: start; }
.beside > .field, .beside > fieldset, .beside > .stack { flex: 1 1 200px; min-width: 0; }
.beside > .stack { gap: 4px; flex-basis: 180px; }
.beside .beside > .field, dialog .beside > .field { flex-basis: 130px; }
.strip { display: flex; flex-wrap: wrap; gap: 8px 16px; align-items: baseline; margin-bottom: 10px; }
.strip output, .line, .note { color: var(--awizo-pale); overflow-wrap: anywhere; }
.tasks { display: flex; flex-wrap: wrap; gap: 6px; position: relative; }
.menu { position: relative; }
.menu > button { border-color: transparent; background: none; padding-inline: 10px; }
.menu > button::after { content: " ▾"; content: " ▾" / ""; color: var(--awizo-pale); }
.menu > button[aria-expanded=true] { border-color: var(--awizo-accent); }
.tasks > [data-step] { max-width: 230px; }
[role=menu] { position: absolute; z-index: 6; top: 100%; left: 0; min-width: 290px; max-height: 75dvh; overflow: auto; padding: 4px;
  background: var(--awizo-paper); border: 1px solid var(--awizo-line); border-radius: 8px; box-shadow: 0 6px 20px #0003; }
[role=menu] button { display: flex; justify-content: space-between; gap: 24px; width: 100%; border: 0; text-align: start; padding: 5px 10px; }
[role=menu] button:focus { background: color-mix(in srgb, var(--awizo-accent) 18%, transparent); }
[role=menu] [aria-checked=true] > span:first-child::before { content: "✓ "; content: "✓ " / ""; }
[role=separator] { border-top: 1px solid var(--awizo-line); margin: 4px 0; }
.key { color: var(--awizo-pale); }
.note { font-size: 13px; }
.tasks button { max-width: 100%; white-space: nowrap; overflow: hidden; text-overflow: ellipsis; }
@container (max-width: 640px) { .tasks { gap: 6px 1px; } .menu { position: static; } .menu > button { padding-inline: 3px; } [role=menu] { right: 0; } }
h1 { font-size: 19px; margin: 0; overflow-wrap: anywhere; }
fieldset { border: 1px solid var(--awizo-line); border-radius: 8px; padding: 10px 12px 12px; margin: 0;
  background: var(--awizo-paper); min-width: 0; }
fieldset fieldset { border: 0; padding: 0; }
legend { font-weight: 600; padding: 0 4px; }
fieldset fieldset > legend { padding: 0 0 4px; }
.field { display: flex; flex-direction: column; gap: 3px; min-width: 0; position: relative; }
.field > label { display: flex; flex-direction: column; gap: 3px; min-width: 0; }
.caption { color: var(--awizo-pale); font-size: 13px; overflow-wrap: anywhere; }
.value { min-height: 1.4em; overflow-wrap: anywhere; }
input, select { font: inherit; color: inherit; background: var(--awizo-paper); width: 100%; min-width: 0;
  border: 1px solid var(--awizo-line); border-radius: 6px; padding: 5px 8px; min-height: 34px; }
input:disabled, select:disabled { color: var(--awizo-pale); background: var(--awizo-ground); }
button { font: inherit; color: var(--awizo-ink); background: var(--awizo-paper); cursor: pointer;
  border: 1px solid var(--awizo-line); border-radius: 6px; padding: 5px 14px; min-height: 34px; }
button:hover:not(:disabled) { border-color: var(--awizo-accent); color: var(--awizo-accent); }
button:disabled { color: var(--awizo-pale); cursor: default; }
:focus-visible { outline: 2px solid var(--awizo-accent); outline-offset: 1px; }
.list .opener, .dated .opener { position: absolute; right: 1px; bottom: 1px; border: 0; padding: 0 10px; min-height: 32px; background: none; }
.list input, .dated input { padding-right: 32px; }
.dated input[type=date] { position: absolute; right: 0; bottom: 0; width: 1px; min-height: 0; height: 1px; padding: 0; border: 0; opacity: 0; pointer-events: none; }
.popup { position: absolute; z-index: 5; top: 100%; left: 0; right: 0; overflow: auto; background: var(--awizo-paper);
  border: 1px solid var(--awizo-line); border-radius: 6px; box-shadow: 0 6px 20px #0003; }
.space { position: relative; }
[role=option] { position: absolute; left: 0; right: 0; height: 28px; padding: 3px 8px; white-space: nowrap;
  overflow: hidden; text-overflow: ellipsis; }
[role=option]:hover, [role=option][aria-selected=true] { background: color-mix(in srgb, var(--awizo-accent) 18%, transparent); }
.table { overflow: auto; max-height: 50vh; min-height: 96px; border: 1px solid var(--awizo-line); border-radius: 6px;
  background: var(--awizo-paper); }
.head { position: sticky; top: 0; z-index: 2; background: var(--awizo-ground); width: max-content; min-width: 100%; }
.rows { position: relative; width: max-content; min-width: 100%; }
.row { display: flex; height: 30px; }
.rows .row { position: absolute; left: 0; right: 0; }
.cell { flex: none; padding: 4px 6px; border-right: 1px solid var(--awizo-line); border-bottom: 1px solid var(--awizo-line);
  white-space: nowrap; overflow: hidden; text-overflow: ellipsis; }
.cell.widest { flex-grow: 1; }
.heading .cell { font-size: 13px; font-weight: 600; }
.cell.right { text-align: right; }
.cell.centre { text-align: center; }
.cell.bold { font-weight: 600; }
/* The models' colours are light ones: what is written on them is dark in a dark scheme too. */
.cell.coloured { background: color-mix(in srgb, var(--cell) 70%, white); color: #1c2024; }
.row.current .cell { background: color-mix(in srgb, var(--awizo-accent) 14%, transparent); }
.cell.marked { background: color-mix(in srgb, var(--awizo-accent) 28%, transparent); }
.cell.current { outline: 2px solid var(--awizo-accent); outline-offset: -2px; }
.over { position: absolute; z-index: 1; }
.over .caption { position: absolute; clip-path: inset(50%); }
.over input { padding: 2px 6px; min-height: 30px; }
dialog { color: inherit; background: var(--awizo-ground); border: 1px solid var(--awizo-line); border-radius: 10px;
  padding: 0 16px 6px; width: min(900px, calc(100vw - 16px)); max-height: calc(100dvh - 16px); }
/* The buttons that stick to its foot lie over no field that has the focus. */
dialog:has(> .form > .beside:last-child) { scroll-padding-bottom: 100px; }
dialog .beside > .field:has(select[size="8"]) { flex-basis: 220px; }
dialog .form > .beside:last-child { position: sticky; bottom: -6px; z-index: 3; padding: 10px 0; background: var(--awizo-ground); }
dialog.box { width: min(480px, calc(100vw - 16px)); }
dialog.box p { white-space: pre-line; overflow-wrap: anywhere; }
dialog.critical { border-top: 4px solid light-dark(#b3261e, #f2b8b5); }
::backdrop { background: #0007; }
.title { display: flex; justify-content: space-between; align-items: center; gap: 10px; }
h2 { font-size: 17px; margin: 12px 0; }
.closer { border: 0; background: none; font-size: 20px; padding: 0 8px; }
.buttons { justify-content: end; }
.waiting, .dead { padding: 24px; }
dialog.guide { width: min(920px, 100vw); height: 100dvh; max-width: none; max-height: none; margin: 0 0 0 auto; padding: 0 0 0 16px; border-radius: 0;
  border-width: 0 0 0 1px; overflow: hidden; }
dialog.guide[open] { display: flex; flex-direction: column; }
dialog.guide::backdrop { background: #0003; }
.columns { flex: 1; min-height: 0; display: flex; gap: 16px; }
.columns nav { flex: 0 0 210px; overflow: auto; padding: 4px 4px 16px; }
.columns nav button { display: block; width: 100%; border: 0; background: none; text-align: start; padding: 5px 8px; }
.columns section { flex: 1; min-width: 0; overflow: auto; padding: 0 20px 24px; background: var(--awizo-paper); overflow-wrap: anywhere; }
.columns section:focus-visible { outline-offset: -2px; }
.columns img { max-width: 100%; height: auto; border: 1px solid var(--awizo-line); border-radius: 6px; }
.columns table { border-collapse: collapse; }
.columns :is(td, th) { border: 1px solid var(--awizo-line); padding: 4px 8px; text-align: start; vertical-align: top; }
.columns code { background: var(--awizo-ground); padding: 0 4px; border-radius: 4px; }
@media (max-width: 640px) { .columns { flex-direction: column; gap: 8px; } .columns nav { flex: 0 1 auto; max-height: 26dvh; } .columns section { padding: 0 10px 24px; } }
.sheet { display: flex; justify-content: center; background: var(--awizo-line); border-radius: 6px; padding: 8px; height: min(62dvh, 700px); }
.sheet svg { width: auto; max-width: 100%; height: 100%; background: linear-gradient(white, white); }
.desk { display: flex; flex-wrap: wrap; gap: 12px; align-items: start; }
.desk > .form { flex: 1 1 700px; min-width: 0; }
.packing { flex: 1 1 340px; min-width: 0; display: flex; flex-direction: column; gap: 8px; position: sticky; top: 8px; }
.packing output { font-weight: 600; }
.packing label { display: flex; gap: 8px; align-items: center; }
.packing input { width: auto; min-height: 0; }
.packing-rows { height: 38dvh; min-height: 150px; overflow: auto; background: var(--awizo-paper); border: 1px solid var(--awizo-line); border-radius: 6px; }
.packing-row { position: absolute; left: 0; right: 0; height: 30px; display: flex; gap: 8px; padding: 4px 8px; cursor: default; border-bottom: 1px solid var(--awizo-line); }
.packing-row span { white-space: nowrap; overflow: hidden; text-overflow: ellipsis; flex: none; max-width: 45%; }
.packing-row .name { flex: 1; max-width: none; }
.packing-row[aria-selected=true] { background: color-mix(in srgb, var(--awizo-accent) 20%, transparent); }
.packing-rows:focus .packing-row.current { outline: 2px solid var(--awizo-accent); outline-offset: -2px; }
.printed { position: absolute; width: 0; height: 0; border: 0; visibility: hidden; }
`;

let made: CSSStyleSheet | undefined;

/// One sheet for all elements of the page.
export function styles(): CSSStyleSheet {
  if (made === undefined) {
    made = new CSSStyleSheet();
    made.replaceSync(text);
  }
  return made;
}
