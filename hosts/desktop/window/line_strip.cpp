#include "hosts/desktop/window/line_strip.h"

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {

LineStrip::LineStrip(const Editor& editor) : LongText("lineStrip"), editor_(editor), line_(editor) {
  observation_ =
      editor.form.grdPozycje.observers.add([this](const Change& change) { follow(change); });
  showWords();
}

LineStrip::~LineStrip() { editor_.form.grdPozycje.observers.remove(observation_); }

void LineStrip::say(const QString& words) {
  line_.say(toText(words));
  showWords();
}

/// A document comes and goes by thousands of changes in one event; the words are made once.
void LineStrip::follow(const Change& change) {
  const bool matters =
      change.aspect == Aspect::selection || change.aspect == Aspect::rows ||
      change.aspect == Aspect::redraw ||
      (change.aspect == Aspect::cell && change.row == editor_.form.grdPozycje.row());
  if (!matters || due_) return;
  due_ = true;
  QMetaObject::invokeMethod(
      this, [this] { showWords(); }, Qt::QueuedConnection);
}

void LineStrip::showWords() {
  due_ = false;
  setWords(fromText(line_.words()));
}

}  // namespace awizo::desktop
