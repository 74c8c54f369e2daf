#include "desk/document_watch.h"

#include "desk/layout_words.h"
#include "foundation/date_text.h"
#include "platform/text.h"
#include "session/record/properties.h"

namespace awizo {
namespace {

constexpr std::string_view packingIsNotSaved =
    "В сохранённом файле не остаётся, что в какой упаковке лежит: после открытия товар "
    "упаковывают заново.";

constexpr std::string_view askBeforeRepeating =
    "Если он дошёл, получатель увидит его дважды. Спросите получателя или отправьте ещё раз.";

/// " ТН-6", to follow a word; empty where the document has no number.
std::string afterWord(std::string_view number) {
  return number.empty() ? "" : joined({" ", number});
}

}  // namespace

DocumentWatch::DocumentWatch(AwizoWysylki& control, const Clock& clock)
    : control_(control), clock_(clock) {
  observation_ = control.form.deeds.add([this](const Deed& deed) { note(deed); });
}

DocumentWatch::~DocumentWatch() { control_.form.deeds.remove(observation_); }

void DocumentWatch::note(const Deed& deed) {
  const std::string now = hourMinute(clock_.now().time);
  const std::string& number = control_.form.txtNrAwiza.text();
  switch (deed.kind) {
    case Deed::Kind::refused:
      refusal_ = deed.text;
      break;
    case Deed::Kind::ordered:
      status_ = joined({"Получен в ", now, " заказ", afterWord(control_.form.txtNrZam.text()),
                        ", строк: ", std::to_string(control_.editor.session.LineCount)});
      break;
    case Deed::Kind::noOrder:
      status_ = "Ни один заказ не ждёт.";
      break;
    case Deed::Kind::read:
      status_ = joined({"Открыт в ", now, ": ", deed.text});
      break;
    case Deed::Kind::notRead:
      status_ = joined({"Не удалось открыть: ", deed.text});
      break;
    case Deed::Kind::saved:
      status_ = joined({"Сохранено в ", now, ": ", deed.text});
      ++savings_;
      break;
    case Deed::Kind::sent:
      status_ = joined({"Отправлено в ", now, afterWord(number)});
      break;
    case Deed::Kind::unanswered:
      status_ = joined(
          {"Отправлено в ", now, " без ответа службы: документ", afterWord(number), " мог дойти"});
      unanswered_ = now;
      break;
    case Deed::Kind::filled:
      status_ = joined({"Заполнено строк: ", std::to_string(deed.lines)});
      break;
  }
  if (deed.keepsDocument()) {
    savedOnly_ = deed.kind == Deed::Kind::saved;
    if (!savedOnly_) unanswered_.clear();
  }
  if (onDeed) onDeed();
}

bool DocumentWatch::canSave() const { return control_.form.btnZapisz.takesInput(); }

bool DocumentWatch::packingIsUnsaved() const {
  return savedOnly_ && control_.editor.session.IloscPozycjiOpak > 0;
}

std::optional<Question> DocumentWatch::questionBefore(WayOut way) const {
  const AwizoForm& form = control_.form;
  const std::string number = afterWord(form.txtNrAwiza.text());
  Question question;
  if (control_.isDocumentChanged()) {
    question.text =
        joined({"Документ", number, " не отправлен и не сохранён после изменений.\r\n"});
    if (canSave()) question.choices.push_back(Choice::save);
    question.choices.push_back(Choice::letGo);
  } else if (packingIsUnsaved()) {
    question.text = joined({"Документ", number, " сохранён, но не отправлен.\r\n"});
    question.choices.push_back(Choice::goOn);
  } else {
    return std::nullopt;
  }
  if (form.OrderAnswer) {
    question.text += joined(
        {"Заказ", afterWord(form.txtNrZam.text()), " служба выдала и второй раз не выдаст.\r\n"});
  }
  if (!unanswered_.empty()) {
    question.text += joined({"Отправленный в ", unanswered_, ", он мог дойти.\r\n"});
  }
  question.text += packingIsNotSaved;
  if (way == WayOut::open) question.text += "\r\n\r\nОткрытый файл займёт место этого документа.";
  question.choices.push_back(Choice::cancel);
  return question;
}

bool DocumentWatch::mayTake(WayOut way) {
  const std::optional<Question> question = questionBefore(way);
  if (!question) return true;
  const Choice choice = ask ? ask(*question) : question->harmless;
  if (choice != Choice::save) return choice == Choice::letGo || choice == Choice::goOn;
  const int before = savings_;
  save();
  return savings_ != before;
}

bool DocumentWatch::mayPress(const Button& button) {
  // What the user can't press is refused by the button itself.
  if (!button.takesInput()) return true;
  const AwizoForm& form = control_.form;
  if (&button == &form.btnWczytaj) return mayTake(WayOut::open);
  if (&button != &form.btnPrzeslij || unanswered_.empty()) return true;
  const Question question{
      .text =
          joined({"Документ", afterWord(form.txtNrAwiza.text()), " уже отправляли в ", unanswered_,
                  ", но ответ службы не пришёл: он мог дойти.\r\n", askBeforeRepeating}),
      .choices = {Choice::send, Choice::cancel}};
  return ask && ask(question) == Choice::send;
}

std::optional<Question> DocumentWatch::questionWhileWorking() const {
  Question question{.choices = {Choice::wait, Choice::leave}, .harmless = Choice::wait};
  const std::optional<Exchange> running = control_.editor.session.RunningExchange;
  if (running == Exchange::order) {
    question.text =
        "Служба выдаёт заказ. Если закрыть окно сейчас, заказ может пропасть: второй раз "
        "его не выдадут.";
  } else if (running == Exchange::sending) {
    question.text =
        "Документ отправляется. Если закрыть окно сейчас, останется неизвестным, дошёл ли он.";
  } else {
    return std::nullopt;
  }
  return question;
}

std::string DocumentWatch::title() const {
  const AwizoForm& form = control_.form;
  const std::string& number = form.txtNrAwiza.text();
  const std::string& order = form.txtNrZam.text();
  const bool changed = control_.isDocumentChanged();
  std::string title = number;
  if (number.empty() && (changed || !order.empty())) title = "Без номера";
  if (!order.empty()) title += joined({" — ", order});
  if (title.empty()) return std::string(words::windowTitle);
  if (changed) title += " *";
  if (!unanswered_.empty()) title += " (мог дойти)";
  return title;
}

std::string DocumentWatch::address() const {
  const AwizoForm& form = control_.form;
  return isOffLine(form.OnLine) ? "" : form.UploadUrl;
}

void DocumentWatch::tell(std::string words) {
  status_ = std::move(words);
  if (onDeed) onDeed();
}

std::string DocumentWatch::status() const { return status_; }

}  // namespace awizo
