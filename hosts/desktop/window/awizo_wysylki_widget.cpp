#include "hosts/desktop/window/awizo_wysylki_widget.h"

#include <QLabel>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "desk/choose_path.h"
#include "desk/desk_settings.h"
#include "desk/document_watch.h"
#include "desk/first_stop.h"
#include "desk/host_boxes.h"
#include "desk/kept_sizes.h"
#include "desk/layout_words.h"
#include "desk/scanner_switch.h"
#include "desk/step_words.h"
#include "hosts/common/program/kept_record.h"
#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/layouts/command_actions.h"
#include "hosts/desktop/layouts/turning_splitter.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "hosts/desktop/screen/message_box.h"
#include "hosts/desktop/window/assistants.h"
#include "hosts/desktop/window/finder.h"
#include "hosts/desktop/window/main_layout.h"
#include "hosts/desktop/window/package_numbers.h"
#include "hosts/desktop/window/packing_pane.h"
#include "hosts/desktop/window/paper_maker.h"
#include "hosts/desktop/window/scanner_fields.h"
#include "hosts/desktop/window/surroundings.h"
#include "journal/history.h"
#include "journal/recording.h"
#include "journal/unfinished_work.h"
#include "platform/text.h"
#include "session/awizo_wysylki.h"
#include "session/record/off_line_path.h"
#include "session/record/properties.h"

namespace awizo::desktop {
namespace {

// Names by which sizes are kept.
constexpr const char* documentAndPacking = "documentAndPacking";
constexpr const char* packingLinesAndPackages = "packingLinesAndPackages";

/// Nothing is given where nothing was kept.
template <class Give>
void giveSizes(const std::vector<int>& kept, Give&& give) {
  if (!kept.empty()) give(QList<int>(kept.begin(), kept.end()));
}

}  // namespace

QLocale localeNamed(const std::string& name) {
  const QLocale locale(fromText(chosenLocale(name)));
  return locale.language() == QLocale::C ? QLocale("ru_RU") : locale;
}

/// The control in its surroundings and on the screen.
struct AwizoWysylkiWidget::Parts {
  Parts(const GivenParts& given, AwizoWysylkiWidget& widget)
      : content(new QWidget(&widget)),
        surroundings(given, widget,
                     [&widget](std::string_view property) {
                       if (property == properties::onLine) emit widget.onLineChanged();
                       if (property == properties::debugLevel) emit widget.debugLevelChanged();
                     }),
        record(given.records.folder, given.records.header,
               [this](const RunTimeError& error) { recordingTrouble = diskRefusal(error); }),
        replayedName(given.records.replayedName),
        tape(given.records.replayed.records, record.file(), record.texts()),
        taped(tape, surroundings.platform, given.records.today),
        session(taped.platform),
        control(taped.platform, session),
        recording(tape, taped, control),
        history(tape, control),
        watch(control, surroundings.platform.clock),
        faces(nullptr),
        scannerFields(control, face) {
    // Dates and times are written as the control writes them.
    content->setLocale(localeNamed(given.locale));
    faces = new FormFace(control.form, *content);
    face.setMainWindow(control.form, widget);
  }
  ~Parts() {
    face.releaseDialogs();
    delete faces;
    // What is shown besides the faces follows the control too, which is destroyed now.
    delete packingPane;
    delete content;
  }
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  /// What is hidden has no size that could be kept.
  void nameParts(bool paneIsShown) const {
    whole->setObjectName(paneIsShown ? documentAndPacking : "");
    packingPane->splitter()->setObjectName(paneIsShown ? packingLinesAndPackages : "");
  }

  QWidget* content;
  TurningSplitter* whole = nullptr;  ///< what is beside the content
  Surroundings surroundings;
  Waiting& waiting = surroundings.waiting;
  HostScreenFace& face = surroundings.face;
  std::string recordingTrouble;  ///< why nothing is recorded; empty while all is well
  KeptRecord record;
  std::string replayedName;
  journal::Tape tape;
  journal::TapedPlatform taped;
  SessionState session;
  AwizoWysylki control;
  journal::Recording recording;
  journal::History history;
  DocumentWatch watch;
  FormFace* faces;
  ScannerFields scannerFields;
  Status status;
  CommandActions* commands = nullptr;
  Finder* finder = nullptr;  ///< belongs to `content`
  std::unique_ptr<PaperMaker> paperMaker;
  std::unique_ptr<PackageNumbers> packageNumbers;  ///< null where the firm has none
  std::unique_ptr<Assistants> assistants;
  std::unique_ptr<ScannerSwitch> scannerSwitch;
  QPointer<PackingPane> packingPane;  ///< belongs to the widget
};

AwizoWysylkiWidget::AwizoWysylkiWidget(const GivenParts& given, QWidget* parent)
    : QWidget(parent), parts_(std::make_unique<Parts>(given, *this)) {
  Parts& parts = *parts_;
  connectRecording();
  replayOr([&parts] { parts.recording.create(); });
  parts.finder = new Finder(parts.control.editor, *parts.faces);
  parts.paperMaker = std::make_unique<PaperMaker>(parts.control.editor, parts.surroundings.files,
                                                  given.settings, *this);
  if (!given.numbersBeginning.empty()) {
    parts.packageNumbers = std::make_unique<PackageNumbers>(
        parts.control.editor, parts.control.dlgSzczegoly, given.numbersBeginning,
        parts.surroundings.platform.clock, parts.face);
    parts.finder->rules().moreFaults = [&parts] { return parts.packageNumbers->faults(); };
  }
  parts.face.onModal = [&parts, before = parts.face.onModal](Form& form) {
    if (before) before(form);
    Control* stop = firstStop(parts.control, form);
    if (stop != nullptr) parts.face.dialog(form).faces().act([stop] { stop->userFocus(); });
  };
  parts.assistants = std::make_unique<Assistants>(
      Assistance{parts.surroundings.assistedFace, parts.control, parts.history,
                 parts.packageNumbers ? &parts.packageNumbers->offer() : nullptr},
      parts.face, parts.waiting, *this);
  parts.scannerSwitch = std::make_unique<ScannerSwitch>(
      parts.finder->rules(), parts.surroundings.platform.settings, [&parts](std::string_view ean) {
        if (parts.packingPane != nullptr) parts.packingPane->standOnItsPackage();
        return parts.assistants->packScannedUnit(ean);
      });
  // While it is empty, for a splitter measures at once all that comes in.
  parts.whole = new TurningSplitter;
  parts.whole->setChildrenCollapsible(false);
  parts.whole->addWidget(parts.content);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(parts.whole);
  parts.status = layOutMain(parts.control.editor, *parts.faces, parts.finder->strip());
  parts.faces->showAll();
  parts.commands =
      new CommandActions(buttonCommands(commandMenus(parts.control.form)), *parts.faces, *this);
  parts.commands->follow();
  parts.faces->onStateShown.add([this](Face&) { showStates(); });
  parts.faces->onChange = [this](const Change&) { showStates(); };
  parts.faces->mayPress = [&parts](const Button& button) { return parts.watch.mayPress(button); };
  parts.watch.ask = [&parts](const Question& question) { return parts.face.choose(question); };
  parts.watch.save = [&parts] { parts.commands->pressUnasked(parts.control.form.btnZapisz); };
  parts.watch.onDeed = [this] { showStandingSoon(); };
  for (Control* control : parts.control.form.controls()) {
    control->observers.add([this](const Change&) { showStandingSoon(); });
  }

  SettingsStore& settings = parts.surroundings.platform.settings;
  if (isOn(settings, DeskSwitch::packingPane)) {
    packingPane().show();
    parts.nameParts(true);
  }
  makeCurtain();
}

/// Few want it at the start, so it is made when it is asked for.
PackingPane& AwizoWysylkiWidget::packingPane() {
  Parts& parts = *parts_;
  if (parts.packingPane != nullptr) return *parts.packingPane;
  SettingsStore& settings = parts.surroundings.platform.settings;
  auto* pane = new PackingPane(parts.control.editor, *parts.faces, parts.waiting,
                               [&parts](const std::vector<int>& lines, int package) {
                                 parts.assistants->packRest(lines, package);
                               });
  parts.packingPane = pane;
  pane->hide();
  for (QTreeView* view : {pane->lines(), pane->packages()}) parts.finder->listen(*view);
  parts.whole->addWidget(pane);
  parts.whole->setStretchFactor(0, 1);
  parts.whole->setStretchFactor(1, 0);
  parts.nameParts(true);
  const KeptSizes kept(settings);
  for (const Qt::Orientation way : {Qt::Horizontal, Qt::Vertical}) {
    giveSizes(kept.of(keptName(*parts.whole, way), 2),
              [&](const QList<int>& sizes) { parts.whole->giveSizes(way, sizes); });
  }
  giveSizes(kept.of(packingLinesAndPackages, 2),
            [&](const QList<int>& sizes) { pane->splitter()->setSizes(sizes); });
  parts.nameParts(false);
  pane->onToggle = [this, &settings](bool shown) {
    setOn(settings, DeskSwitch::packingPane, shown);
    parts_->nameParts(shown);
    if (shown) growWindow();
  };
  return *pane;
}

/// What has come stands beside the document where the screen has room for both.
void AwizoWysylkiWidget::growWindow() {
  layout()->activate();
  QWidget& whole = *window();
  const int missing = parts_->whole->widthSideBySide() - parts_->whole->width();
  if (missing > 0 && whole.width() + missing <= roomFor(whole).width()) {
    whole.resize(whole.size() + QSize(missing, 0));
  }
  parts_->whole->turn();
}

/// Before its start the control's form holds what the start takes away, and a question may stand
/// before that.
void AwizoWysylkiWidget::makeCurtain() {
  curtain_ = new QWidget(this);
  curtain_->setAutoFillBackground(true);
}

void AwizoWysylkiWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (curtain_ != nullptr) curtain_->resize(size());
}

ScannerSwitch& AwizoWysylkiWidget::scannerSwitch() { return *parts_->scannerSwitch; }

AwizoWysylkiWidget::~AwizoWysylkiWidget() {
  endWork();
  Parts& parts = *parts_;
  parts.control.UserControl_WriteProperties();
  // A control that never worked has read no folder that it could keep.
  if (started_) parts.control.UserControl_Terminate();
  delete parts.commands;
}

QString AwizoWysylkiWidget::onLine() const { return fromText(parts_->control.OnLine()); }

void AwizoWysylkiWidget::setOnLine(const QString& value) {
  parts_->recording.setProperty(std::string(properties::onLine), toText(value));
}

QString AwizoWysylkiWidget::debugLevel() const { return fromText(parts_->control.DebugLevel()); }

void AwizoWysylkiWidget::setDebugLevel(const QString& value) {
  parts_->recording.setProperty(std::string(properties::debugLevel), toText(value));
}

void AwizoWysylkiWidget::connectRecording() {
  Parts& parts = *parts_;
  parts.tape.summary = [&parts] {
    const auto& clock = parts.surroundings.platform.clock;
    return journal::textsOf(
        journal::summaryOf(parts.control, clock, [&parts] { return parts.watch.wouldBeLost(); }));
  };
  parts.history.onChange = [this] { emit historyChanged(); };
  parts.tape.onTrouble = [this](const RunTimeError& error) { tellOfRecording(diskRefusal(error)); };
  parts.recording.onLive = [&parts] {
    if (parts.tape.recording()) parts.record.forgetReplayed(parts.replayedName);
  };
}

void AwizoWysylkiWidget::tellOfRecording(const std::string& why) {
  parts_->watch.tell(joined({words::notRecorded, why}));
}

template <class Replay>
void AwizoWysylkiWidget::replayOr(Replay&& replay) {
  try {
    replay();
  } catch (const journal::ReplayDiffers&) {
    replayFailed_ = true;
  }
}

AwizoWysylki& AwizoWysylkiWidget::control() { return parts_->control; }
FormFace& AwizoWysylkiWidget::faces() { return *parts_->faces; }
CommandActions& AwizoWysylkiWidget::commands() { return *parts_->commands; }
Finder& AwizoWysylkiWidget::finder() { return *parts_->finder; }
PaperMaker& AwizoWysylkiWidget::paperMaker() { return *parts_->paperMaker; }

void AwizoWysylkiWidget::showNumberRange() {
  if (parts_->packageNumbers) parts_->packageNumbers->showRange();
}

NumberRangeDialog& AwizoWysylkiWidget::numberRangeDialog() {
  return parts_->packageNumbers->rangeDialog();
}

Assistants& AwizoWysylkiWidget::assistants() { return *parts_->assistants; }
Waiting& AwizoWysylkiWidget::waiting() { return parts_->waiting; }

bool AwizoWysylkiWidget::hasFailed() const { return parts_->face.programEnded(); }

bool AwizoWysylkiWidget::isWorking() const {
  return parts_->waiting.lasts() || parts_->face.asksUser();
}

void AwizoWysylkiWidget::endWork() { parts_->face.end(); }

Answer AwizoWysylkiWidget::ask(const MessageBox& box) {
  return parts_->control.screen.messageBox(box);
}

bool AwizoWysylkiWidget::askOffLineFolder() {
  Parts& parts = *parts_;
  parts.recording.askOffLineFolder();
  return !keptOffLinePath(parts.surroundings.platform.settings).empty();
}

void AwizoWysylkiWidget::openDocument(const std::string& path) {
  Parts& parts = *parts_;
  parts.face.actOnNextForm([&parts, path] { choosePath(parts.control.dlgWczytajZapisz, path); });
  parts.commands->pressUnasked(parts.control.form.btnWczytaj);
  parts.face.actOnNextForm(nullptr);
}

const journal::History& AwizoWysylkiWidget::history() const { return parts_->history; }

void AwizoWysylkiWidget::takeBack() {
  if (Face* face = parts_->faces->focusedFace()) face->finishTyping();
  if (const journal::StepName* step = parts_->history.toTakeBack()) {
    travel(&journal::History::takeBack,
           joined({words::takenBack, stepWords(parts_->control.form, *step)}));
  }
}

void AwizoWysylkiWidget::doAgain() {
  if (const journal::StepName* step = parts_->history.toDoAgain()) {
    travel(&journal::History::doAgain,
           joined({words::doneAgain, stepWords(parts_->control.form, *step)}));
  }
}

void AwizoWysylkiWidget::travel(void (journal::History::*act)(), const std::string& done) {
  Parts& parts = *parts_;
  if (isWorking()) return;
  parts.faces->act([&] { (parts.history.*act)(); });
  parts.watch.tell(done);
}

void AwizoWysylkiWidget::start() {
  if (startAsked_) return;
  startAsked_ = true;
  if (mayStart && !mayStart()) {
    startAsked_ = false;
    emit startEnded();
    return;
  }
  started_ = true;
  delete curtain_;
  if (parts_->tape.replaying()) {
    replayOr([this] { parts_->recording.replay(); });
  } else {
    parts_->recording.show();
  }
  if (!parts_->recordingTrouble.empty()) tellOfRecording(parts_->recordingTrouble);
  showStates();
  emit startEnded();
}

void AwizoWysylkiWidget::showStates() {
  if (parts_->commands != nullptr) parts_->commands->follow();
  const QString address = fromText(parts_->watch.address());
  parts_->status.address->setText(address);
  parts_->status.address->setToolTip(address);
}

void AwizoWysylkiWidget::showStandingSoon() {
  // The whole document is looked at for it, so typing doesn't ask for it at each key.
  constexpr int milliseconds = 100;
  if (std::exchange(standingIsDue_, true)) return;
  QTimer::singleShot(milliseconds, this, &AwizoWysylkiWidget::showStanding);
}

void AwizoWysylkiWidget::showStanding() {
  standingIsDue_ = false;
  parts_->status.standing->setWords(fromText(parts_->watch.status()));
  emit standingChanged();
}

DocumentWatch& AwizoWysylkiWidget::watch() { return parts_->watch; }

void AwizoWysylkiWidget::askWhileWorking(const Question& question,
                                         std::function<void(Choice)> chosen) {
  auto* box = new QuestionBox(question, window());
  box->setAttribute(Qt::WA_DeleteOnClose);
  connect(box, &QDialog::finished, this,
          [box, chosen = std::move(chosen)] { chosen(box->choice()); });
  parts_->waiting.letAnswer(box);
  box->open();
}

void AwizoWysylkiWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  // Coming back from the task bar is no new showing.
  if (event->spontaneous()) return;
  // The window is painted first.
  QMetaObject::invokeMethod(this, &AwizoWysylkiWidget::start, Qt::QueuedConnection);
}

}  // namespace awizo::desktop
