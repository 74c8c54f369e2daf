#include "random_user/user.h"

#include <algorithm>
#include <utility>

#include "platform/forms/file_lists.h"
#include "platform/forms/keys.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "random_user/texts.h"
#include "support/files/files.h"
#include "support/schemas/schema.h"

namespace awizo::test {
namespace {

constexpr std::size_t rememberedActions = 60;

const std::string accepted =
    "<send-document-response><submission-status>OK</submission-status></send-document-response>";

std::string demoDocument(const std::string& name) {
  const std::string text = projectFile("demo/data/" + name);
  return text.substr(text.find("?>") + 2);
}

/// Whether a document couldn't be made, saved or sent or a disk failed, which leaves the tables
/// alone.
bool tellsOfFailure(const MessageBox& box) {
  if (Outages::isDiskError(box.text)) return true;
  for (const char* title : {"MakeDesAdv", "btnZapisz_Click", "SendXMLDOMRequest"}) {
    if (box.title.find(title) != std::string::npos) return true;
  }
  return false;
}

/// Whether a procedure that writes the tables may have been ended half-way. Errors of the platform
/// are in English, and all that the system itself says in a critical box is Russian.
bool mayHaveBrokenTables(const MessageBox& box) {
  return !tellsOfFailure(box) && box.icon == BoxIcon::critical &&
         std::none_of(box.text.begin(), box.text.end(), [](char c) { return (c & 0x80) != 0; });
}

/// What a user does on the main form, in proportion to how often it is listed here.
const std::vector<std::string> mainForm{
    "btnDodaj",      "btnDodaj",      "btnDodaj",     "btnEdytuj",     "btnEdytuj",
    "btnEdytuj",     "btnUsun",       "btnDodajOpak", "btnDodajOpak",  "btnDodajOpak",
    "btnEdytujOpak", "btnEdytujOpak", "btnUsunOpak",  "btnUzupelnij2", "btnNadpisz2",
    "Image2",        "comboCountry",  "btnZapisz",    "btnPrzeslij",   "grdPozycje",
    "grdPozycje",    "grdPozycje",    "grdPozycje",   "grdPozycje",    "grdOpakowania",
    "grdOpakowania", "txtEdycja",     "txtEdycja",    "txtEdycja",     "txtEdycja",
    "txtNrAwiza",    "txtNrZam"};

}  // namespace

RandomUser::RandomUser(Dice& dice, const Beginning& beginning, const Listener& listener)
    : dice_(dice), desk_(beginning.localeName, listener.between), withOutages_(beginning.outages) {
  prepare(beginning);
  desk_.files.putFolder("c:\\docs");
  listener.start(desk_.control);
}

RandomUser::RandomUser(Dice& dice, const Beginning& beginning)
    : dice_(dice), desk_(beginning.localeName), withOutages_(beginning.outages) {
  prepare(beginning);
  desk_.start();
  desk_.form.deeds.add(
      [this](const Deed& deed) { documentKept_ = documentKept_ || deed.keepsDocument(); });
  desk_.files.putFolder("c:\\docs");
  desk_.form.comboStawkaVAT.setVisible(dice.percent(50));
  desk_.form.btnUzupelnij.setVisible(desk_.form.comboStawkaVAT.visible());
  desk_.form.btnNadpisz.setVisible(desk_.form.comboStawkaVAT.visible());
  postedBefore_ = desk_.http.sent.size();
}

void RandomUser::prepare(const Beginning& beginning) {
  desk_.face.answerUnscripted = [this](const MessageBox&) {
    return dice_.percent(70) ? Answer::yes : Answer::no;
  };
  desk_.face.actUnscripted = [this](Form& form) { actOnModal(form); };
  desk_.prepareFolder();
  desk_.files.put(TestControl::partnerFile, TestControl::partnerInfo("ООО Покупатель"));
  desk_.bag.values["DebugLevel"] = beginning.logOpen ? "4" : "";
  if (!beginning.onLine) {
    desk_.bag.values["OnLine"] = "Off";
    return;
  }
  desk_.preparePage();
  desk_.http.reply(TestControl::partnerInfo("ООО Покупатель"));
  prepareReply("<document-response><status>CHANGED</status><document-content>" +
               demoDocument("catalogue.xml") + "</document-content></document-response>");
  prepareReply("<dictionary-response><status>CHANGED</status><document-content>" +
               demoDocument("delivery-places.xml") + "</document-content></dictionary-response>");
  prepareReply("<receive-document-response><document-content>" + demoDocument("order.xml") +
               "</document-content></receive-document-response>");
}

void RandomUser::prepareReply(const std::string& text) {
  if (withOutages_ && dice_.percent(20)) return outages_.failRequest();
  desk_.http.reply(text);
}

void RandomUser::act() {
  if (withOutages_ && dice_.percent(10)) outages_.change();
  if (withOutages_ && dice_.percent(10)) return keepDocument();
  Control* control = &anyControl(desk_.form);
  if (dice_.percent(85)) control = desk_.form.find(dice_.pick(mainForm));
  if (desk_.form.txtEdycja.visible() && dice_.percent(50)) control = &desk_.form.txtEdycja;
  // Reading a file ends what can be said about the tables, so it is rare.
  if (control == &desk_.form.btnWczytaj && dice_.percent(70)) control = &desk_.form.grdSuma;
  actOn(*control);
  lookAround();
}

void RandomUser::keepDocument() {
  for (TextField* field :
       {&desk_.form.txtNrAwiza, &desk_.form.txtNrZam, &desk_.form.txtCodeByBuyer}) {
    attempt("type 417 into " + field->name(), [&] { field->userType("417"); });
  }
  actOn(dice_.percent(50) ? static_cast<Control&>(desk_.form.btnZapisz) : desk_.form.btnPrzeslij);
  lookAround();
}

void RandomUser::lookAround() {
  lookAtBoxes();
  lookAtDocuments();
  lowerTrust(desk_, trust_);
}

Control& RandomUser::anyControl(Form& form) {
  return *form.controls()[static_cast<std::size_t>(
      dice_.below(static_cast<int>(form.controls().size())))];
}

void RandomUser::actOnModal(Form& form) {
  history_.push_back("  " + form.name() + " opens");
  if (dice_.percent(80)) fillPlausibly(form);
  int patience = 1 + dice_.below(12);
  while (form.shown() && patience-- > 0) {
    const bool accepts = form.acceptButton != nullptr && dice_.percent(30);
    actOn(accepts ? static_cast<Control&>(*form.acceptButton) : anyControl(form));
  }
  for (int tries = 0; form.shown() && tries < 5; ++tries) {
    attempt("close " + form.name(), [&] { form.userClose(); });
  }
  if (form.shown()) {
    complaints_.push_back(form.name() + " can't be closed");
    form.hide();
  }
  history_.push_back("  " + form.name() + " is closed");
}

void RandomUser::fillPlausibly(Form& form) {
  for (Control* control : form.controls()) {
    if (!form.shown()) return;
    if (!control->takesInput()) continue;
    if (control->kind() == ControlKind::textField) fillText(static_cast<TextField&>(*control));
    if (control->kind() == ControlKind::dropDownList)
      fillList(static_cast<DropDownList&>(*control));
  }
  for (const char* name : {"FileList", "Command1", "ImageZapisz", "ImageWczytaj"}) {
    Control* control = form.find(name);
    if (form.shown() && control != nullptr && control->takesInput()) actOn(*control);
  }
  if (form.shown() && form.acceptButton != nullptr && dice_.percent(80)) {
    actOn(*form.acceptButton);
  }
}

void RandomUser::fillText(TextField& field) {
  const bool isCustoms = field.name().starts_with("txtCDN");
  if (isCustoms && dice_.percent(90)) return;
  const std::string text = typedText(dice_, field.name());
  attempt("type '" + text + "' into " + field.name(), [&] { field.userType(text); });
}

void RandomUser::fillList(DropDownList& list) {
  if (list.name() == "cboxILNLokalizacji" && list.text().empty()) {
    const std::string text = typedText(dice_, list.name());
    return attempt("type '" + text + "' into the ILN", [&] { list.userType(text); });
  }
  if (list.count() == 0 || dice_.percent(50)) return;
  const int row = dice_.below(list.count());
  attempt("choose " + std::to_string(row) + " of " + list.name(), [&] { list.userChoose(row); });
}

void RandomUser::actOn(Control& control) {
  switch (control.kind()) {
    case ControlKind::textField:
      return actOnText(static_cast<TextField&>(control));
    case ControlKind::dropDownList:
      return actOnList(static_cast<DropDownList&>(control));
    case ControlKind::button:
    case ControlKind::pictureButton:
      return actOnButton(static_cast<Button&>(control));
    case ControlKind::table:
      return actOnTable(static_cast<Table&>(control));
    case ControlKind::datePicker:
      return attempt("set " + control.name(), [&] {
        std::optional<Date> date = makeDate(2026, 11 + dice_.below(2), 1 + dice_.below(30));
        if (dice_.percent(10)) date.reset();
        static_cast<DatePicker&>(control).userSet(date);
      });
    case ControlKind::timePicker:
      return attempt("set " + control.name(), [&] {
        static_cast<TimePicker&>(control).userSet(TimeOfDay{dice_.below(24), 30, 0});
      });
    case ControlKind::spinButtons:
      return attempt("spin " + control.name(),
                     [&] { static_cast<SpinButtons&>(control).userSpin(dice_.below(5) - 2); });
    default:
      return actOnFiles(control);
  }
}

void RandomUser::actOnText(TextField& field) {
  if (dice_.percent(75)) {
    const std::string text = typedText(dice_, field.name());
    attempt("type '" + text + "' into " + field.name(), [&] { field.userType(text); });
  }
  if (&field == &desk_.form.txtEdycja || dice_.percent(15)) {
    static const std::vector<std::int16_t> codes{keys::enter, keys::escape, keys::tab,  keys::up,
                                                 keys::down,  keys::left,   keys::blank};
    const std::int16_t code = dice_.pick(codes);
    attempt("key " + std::to_string(code) + " in " + field.name(), [&] { field.userKey(code); });
  }
}

void RandomUser::actOnList(DropDownList& list) {
  if (dice_.percent(70)) {
    const int row = dice_.below(list.count() + 1) - (dice_.percent(20) ? 1 : 0);
    attempt("choose " + std::to_string(row) + " of " + list.name(), [&] { list.userChoose(row); });
  } else {
    const bool asARow = list.count() > 0 && dice_.percent(70);
    const std::string text = asARow ? dice_.pick(list.rows()) : typedText(dice_, list.name());
    attempt("type '" + text + "' into " + list.name(), [&] { list.userType(text); });
  }
}

void RandomUser::actOnButton(Button& button) {
  if (&button == &desk_.form.btnPrzeslij) {
    static const std::vector<std::string> replies{
        accepted, accepted,
        "<send-document-response><submission-status>ERROR</submission-status>"
        "</send-document-response>",
        "<cut off", ""};
    prepareReply(dice_.pick(replies));
  }
  if (&button == &desk_.form.btnWczytaj) trust_.tables = false;
  if (dice_.percent(5)) {
    attempt("double-click " + button.name(), [&] { button.userDoubleClick(); });
  } else {
    attempt("click " + button.name(), [&] { button.userClick(); });
  }
}

void RandomUser::actOnTable(Table& table) {
  const int row = 1 + dice_.below(table.rows() - 1);
  const int column = dice_.percent(40) ? 4 : dice_.below(table.columns());
  const std::string cell = table.name() + " " + std::to_string(row) + "," + std::to_string(column);
  attempt("click " + cell, [&] { table.userCell(row, column); });
  if (dice_.percent(40)) attempt("double-click " + cell, [&] { table.userDoubleClick(); });
  if (dice_.percent(15)) attempt("scroll " + cell, [&] { table.userScroll(row); });
  if (dice_.percent(15)) {
    const auto code = static_cast<std::int16_t>(keys::pageUp + dice_.below(8));
    attempt("key " + std::to_string(code) + " in " + cell,
            [&] { table.userKey(code, dice_.percent(20)); });
  }
  if (dice_.percent(5)) {
    attempt("select from " + cell, [&] { table.userSelect(row, column, 1, 1); });
  }
}

void RandomUser::actOnFiles(Control& control) {
  if (control.kind() == ControlKind::folderList) {
    static const std::vector<std::string> folders{"c:\\docs", "c:\\VIRD", "c:\\", "c:\\nowhere"};
    const std::string folder = dice_.pick(folders);
    attempt("open " + folder, [&] { static_cast<FolderList&>(control).userOpen(folder); });
  }
  if (control.kind() == ControlKind::fileList) {
    auto& list = static_cast<FileList&>(control);
    const int row = dice_.below(static_cast<int>(list.rows().size()));
    attempt("choose file " + std::to_string(row), [&] { list.userChoose(row); });
    if (dice_.percent(30)) attempt("double-click the file", [&] { list.userDoubleClick(); });
  }
  if (control.kind() == ControlKind::driveList) {
    attempt("choose c:", [&] { static_cast<DriveList&>(control).userChoose("c:"); });
  }
}

void RandomUser::attempt(const std::string& what, const std::function<void()>& action) {
  history_.push_back("  " + what);
  while (history_.size() > rememberedActions) history_.pop_front();
  try {
    action();
    ++actions_;
  } catch (const Refused&) {
    history_.push_back("    refused");
  }
  if (onAction) onAction();
}

void RandomUser::lookAtBoxes() {
  for (const MessageBox& box : desk_.face.takeBoxes()) {
    history_.push_back("    " + describe(box));
    if (tellsOfFailure(box)) ++failures_;
    if (mayHaveBrokenTables(box)) trust_.tables = false;
  }
}

void RandomUser::lookAtDocuments() {
  for (; postedBefore_ < desk_.http.sent.size(); ++postedBefore_) {
    requireDocument(desk_.http.sent[postedBefore_].body, "posted document");
  }
  // A save that failed leaves the file that was there, whatever it is.
  const bool kept = std::exchange(documentKept_, false);
  const std::string& path = desk_.session.LastFilePath;
  if (kept && desk_.files.has(path)) requireDocument(desk_.files.bytes(path), path);
}

void RandomUser::requireDocument(const std::string& text, const std::string& where) {
  ++documents_;
  if (!desk_.xml.createDocument()->loadText(text)) {
    complaints_.push_back(where + " isn't well-formed: " + text);
    return;
  }
  // A separator in a description parts the references of lines at wrong places.
  if (!trust_.tables || !trust_.references) return;
  static const Schema schema("despatch-advice-written");
  for (const std::string& problem : schema.problemsOf(text)) {
    complaints_.push_back(where + " doesn't fit its schema: " + problem + ": " + text);
  }
}

std::vector<std::string> RandomUser::complaints() {
  std::vector<std::string> all = brokenRules(desk_, trust_);
  all.insert(all.end(), complaints_.begin(), complaints_.end());
  if (desk_.screen.top() != &desk_.form) all.push_back("a dialog stays on the screen");
  lookAtBoxes();
  return all;
}

std::string RandomUser::history() const {
  std::string text;
  for (const std::string& line : history_) text += line + "\n";
  return text;
}

}  // namespace awizo::test
