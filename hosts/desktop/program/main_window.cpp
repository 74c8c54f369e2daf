#include "hosts/desktop/program/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTimer>
#include <utility>

#include "desk/desk_settings.h"
#include "desk/document_watch.h"
#include "desk/guide_chapter.h"
#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "desk/scanner_switch.h"
#include "desk/step_words.h"
#include "hosts/desktop/faces/icons.h"
#include "hosts/desktop/faces/russian_keys.h"
#include "hosts/desktop/layouts/command_actions.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "hosts/desktop/program/guide.h"
#include "hosts/desktop/program/kept_shape.h"
#include "hosts/desktop/window/assistants.h"
#include "hosts/desktop/window/finder.h"
#include "hosts/desktop/window/packing_pane.h"
#include "hosts/desktop/window/paper_maker.h"
#include "hosts/version.h"
#include "platform/at_exit.h"
#include "session/awizo_wysylki.h"
#include "session/set_up.h"

namespace awizo::desktop {
namespace {

const QSize usualSize(1024, 700);

}  // namespace

MainWindow::MainWindow(Options options, Http* http, RecordFolder* records)
    : launch_(std::move(options)),
      options_(launch_),
      http_(http),
      page_(options_),
      settings_(makeSettings(options_)),
      clock_(makeClock(options_)) {
  if (recordsAreWanted(*settings_)) records_ = records;
  setAcceptDrops(true);
  qApp->installEventFilter(this);
  new RussianKeys(this);
  if (!takesUpUnfinishedWork()) begin();
  takeKeptSize(*this, usualSize, *settings_);
}

/// A dialog takes all keys from the window below; F1 opens its chapter of the guide.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  QWidget* dialog = QApplication::activeModalWidget();
  const bool isKey = event->type() == QEvent::KeyPress && watched->isWidgetType();
  if (!isKey || dialog == nullptr || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) {
    return QMainWindow::eventFilter(watched, event);
  }
  openGuide(*dialog, fromText(guideChapter(toText(dialog->objectName()))));
  return true;
}

MainWindow::~MainWindow() {
  if (wasShown_) keepSize(*this, *settings_);
  dropPart();
}

void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  wasShown_ = true;
}

void MainWindow::dropPart() {
  if (wasShown_ && centralWidget() != nullptr) keepParts(*centralWidget(), *settings_);
  delete takeCentralWidget();
}

GivenParts MainWindow::givenParts() {
  GivenParts parts{*bag_, page_, *settings_, options_.locale, clock_.get(), http_};
  parts.records.folder = records_;
  parts.records.header = headerOf(options_, chosenLocale(options_.locale));
  parts.records.replayed = std::exchange(replayed_, {});
  parts.records.replayedName = std::exchange(replayedName_, "");
  parts.numbersBeginning = numbersBeginning(options_);
  parts.records.today.page = launch_.pageUrl.has_value();
  return parts;
}

void MainWindow::showPart(QWidget* part) {
  setCentralWidget(new Scrolled(part));
  takeKeptParts(*part, *settings_);
  makeMenus();
}

void MainWindow::chooseFolder() {
  if (widget_ == nullptr) {
    startPage_->faces().act([this] { startPage_->page().btnFolder.userPress(); });
  } else if (!widget_->isWorking()) {
    widget_->askOffLineFolder();
  }
}

void MainWindow::makeMenus() {
  menuBar()->clear();
  for (const CommandMenu& menu :
       widget_ == nullptr ? startMenus() : commandMenus(widget_->control().form)) {
    fill(*menuBar()->addMenu(fromText(menu.heading)), menu);
  }
  nameSteps();
}

void MainWindow::nameSteps() {
  if (widget_ == nullptr || takeBack_ == nullptr || doAgain_ == nullptr) return;
  const journal::History& history = widget_->history();
  AwizoForm& form = widget_->control().form;
  takeBack_->setText(fromText(takeBackWords(form, history)));
  takeBack_->setEnabled(history.toTakeBack() != nullptr);
  doAgain_->setText(fromText(doAgainWords(form, history)));
  doAgain_->setEnabled(history.toDoAgain() != nullptr);
}

void MainWindow::fill(QMenu& menu, const CommandMenu& commands) {
  for (const std::vector<Command>& group : commands.groups) {
    if (!menu.isEmpty()) menu.addSeparator();
    for (const Command& command : group) {
      menu.addAction(command.button != nullptr ? widget_->commands().action(*command.button)
                                               : makeTask(command));
    }
  }
}

QAction* MainWindow::makeTask(const Command& command) {
  auto* action = new QAction(fromText(command.words), menuBar());
  if (command.task == HostTask::takeBack) takeBack_ = action;
  if (command.task == HostTask::doAgain) doAgain_ = action;
  if (command.isSwitch) {
    action->setCheckable(true);
    action->setChecked(widget_->scannerSwitch().isOn());
  }
  if (!command.icon.empty()) action->setIcon(iconNamed(fromText(command.icon)));
  QList<QKeySequence> keys;
  for (const CommandKey& key : command.keys) keys << keysOf(key);
  action->setShortcuts(keys);
  // What may take the menu away waits until it has closed.
  const bool takesMenu = command.task == HostTask::startAgain || command.task == HostTask::quit ||
                         command.task == HostTask::chooseFolder;
  connect(
      action, &QAction::triggered, this, [this, task = command.task] { perform(task); },
      takesMenu ? Qt::QueuedConnection : Qt::AutoConnection);
  return action;
}

void MainWindow::perform(HostTask task) {
  switch (task) {
    case HostTask::chooseFolder:
      return chooseFolder();
    case HostTask::startAgain:
      return startAgain();
    case HostTask::quit:
      close();
      return;
    case HostTask::takeBack:
      return widget_->takeBack();
    case HostTask::doAgain:
      return widget_->doAgain();
    case HostTask::findLine:
      return widget_->finder().find();
    case HostTask::findAgain:
      return widget_->finder().findAgain();
    case HostTask::showFaults:
      return widget_->finder().showFaults();
    case HostTask::showLabels:
      return widget_->paperMaker().show(Paper::labels);
    case HostTask::showPackingList:
      return widget_->paperMaker().show(Paper::packingList);
    case HostTask::showPackageSheets:
      return widget_->paperMaker().show(Paper::packageSheets);
    case HostTask::showPackingCsv:
      return widget_->paperMaker().writePackingCsv();
    case HostTask::showPapersOfFile:
      return widget_->paperMaker().showSaved();
    case HostTask::showNumbers:
      return widget_->showNumberRange();
    case HostTask::addPackages:
      return widget_->assistants().addPackages();
    case HostTask::distribute:
      return widget_->assistants().distribute();
    case HostTask::showPacking:
      return widget_->packingPane().toggle();
    case HostTask::scannerPacks:
      return widget_->scannerSwitch().turn(!widget_->scannerSwitch().isOn());
    case HostTask::showGuide:
      return openGuide(*this);
    case HostTask::showAbout:
      ask(aboutBox(versionText(programVersion)));
      return;
    case HostTask::none:
      return;
  }
}

Answer MainWindow::ask(const MessageBox& box) {
  return widget_ != nullptr ? widget_->ask(box) : startPage_->ask(box);
}

bool MainWindow::mayCloseNow() {
  if (widget_ == nullptr) return true;
  if (const auto question = widget_->watch().questionWhileWorking()) {
    if (askedWhileWorking_) return true;
    askWhileWorking(*question);
    return false;
  }
  // A second close while the question is open leaves it to the question.
  if (asking_) return false;
  asking_ = true;
  const AtExit asked([this] { asking_ = false; });
  return widget_->watch().mayTake(WayOut::close);
}

void MainWindow::askWhileWorking(const Question& question) {
  askedWhileWorking_ = true;
  widget_->askWhileWorking(question, [this](Choice choice) {
    if (choice == Choice::leave) close();
  });
}

bool MainWindow::isWorking() const {
  return widget_ != nullptr ? widget_->isWorking() : startPage_->isWorking();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  mayClose_ = mayClose_ || mayCloseNow();
  if (!mayClose_) return event->ignore();
  if (!isWorking()) return event->accept();
  // What is under way ends first; each step of it runs in a call of its own.
  event->ignore();
  if (widget_ != nullptr) {
    widget_->endWork();
  } else {
    startPage_->endWork();
  }
  QTimer::singleShot(0, this, &MainWindow::close);
}

}  // namespace awizo::desktop
