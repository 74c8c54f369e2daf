// The ways in which the window's sessions begin.

#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <utility>

#include "adapters/posix/paths/paths.h"
#include "desk/document_watch.h"
#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "desk/session_start.h"
#include "desk/unfinished_question.h"
#include "hosts/desktop/layouts/command_actions.h"
#include "hosts/desktop/program/addresses.h"
#include "hosts/desktop/program/launch_file.h"
#include "hosts/desktop/program/main_window.h"
#include "hosts/desktop/screen/message_box.h"
#include "journal/texts_beside.h"
#include "journal/unfinished_work.h"
#include "platform/text.h"
#include "session/awizo_wysylki.h"

namespace awizo::desktop {
namespace {

bool isDocument(const QString& path) { return path.endsWith(".xml", Qt::CaseInsensitive); }

QString droppedFile(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

/// The program's own options with those of this session.
Options withSession(Options options, GivenSession given) {
  static_cast<GivenSession&>(options) = std::move(given);
  return options;
}

}  // namespace

void MainWindow::begin() {
  if (namesSession(options_)) {
    makeSession();
  } else {
    showStartPage("");
  }
}

std::optional<journal::UnfinishedWork> MainWindow::workLeftBehind() const {
  return records_ == nullptr ? std::nullopt : journal::unfinishedWork(*records_);
}

bool MainWindow::takesUpUnfinishedWork() {
  const auto work = workLeftBehind();
  if (!work) return false;
  QuestionBox box(unfinishedQuestion(*work), nullptr);
  box.exec();
  if (box.choice() == Choice::startAfresh) giveUp(work->record);
  return box.choice() == Choice::goOn && goOnWith(*work);
}

void MainWindow::giveUp(const std::string& record) {
  try {
    records_->remove(record);
  } catch (const RunTimeError& error) {
    askUser(recordThatStays(error), nullptr);
  }
}

bool MainWindow::goOnWith(const journal::UnfinishedWork& work) {
  // A replay that fails must not hide other work at each start.
  caughtError([&] { records_->markTried(work.record); });
  try {
    replayed_ = journal::keptSession(*records_, work.record);
  } catch (const RunTimeError& error) {
    askUser(unreadableRecord(error), nullptr);
    return false;
  }
  replayedName_ = work.record;
  options_ = optionsToGoOn(launch_, replayed_.header);
  makeSession();
  afterStart_ = [this, time = work.summary.time] {
    widget_->watch().tell(joined({words::continued, time}));
  };
  return true;
}

void MainWindow::makeSession() {
  dropPart();
  startPage_ = nullptr;
  bag_ = std::make_unique<OptionsBag>(options_);
  widget_ = new AwizoWysylkiWidget(givenParts());
  widget_->mayStart = [this] { return mayStart(); };
  widget_->waiting().onEnd.add([this](const Waiting&) { askedWhileWorking_ = false; });
  connect(widget_, &AwizoWysylkiWidget::standingChanged, this,
          [this] { setWindowTitle(fromText(widget_->watch().title())); });
  // The widget may go then, which it can't within its own call.
  connect(widget_, &AwizoWysylkiWidget::startEnded, this, &MainWindow::lookAtStart,
          Qt::QueuedConnection);
  connect(widget_, &AwizoWysylkiWidget::historyChanged, this, &MainWindow::nameSteps);
  setWindowTitle(fromText(words::windowTitle));
  showPart(widget_);
}

void MainWindow::lookAtStart() {
  if (widget_ == nullptr || widget_->isWorking()) return;
  const std::function<void()> next = std::exchange(afterStart_, nullptr);
  const std::string& refusal = widget_->watch().refusal();
  if (widget_->replayFailed()) {
    options_ = launch_;
    replayHasFailed_ = true;
    showStartPage(std::string(words::replayFailed));
  } else if (!widget_->hasStarted()) {
    showStartPage(whyNot_);
  } else if (!refusal.empty()) {
    showStartPage(joined({words::startRefused, refusal}));
  } else if (next) {
    next();
  }
}

void MainWindow::showStartPage(const std::string& why) {
  dropPart();
  widget_ = nullptr;
  bag_ = std::make_unique<OptionsBag>(options_);
  startPage_ = new StartPageWidget(givenParts());
  StartPage& page = startPage_->page();
  // The page goes when a session begins, which it can't within its own events.
  const auto later = [this](const std::function<void()>& act) { QTimer::singleShot(0, this, act); };
  page.onOffLine = [this, later](const Partner& partner) {
    later([this, partner] { beginOffLine(partner); });
  };
  page.onOpen = [this, later](const Partner& partner) {
    later([this, partner] {
      beginOffLine(partner);
      afterStart_ = [this] {
        widget_->commands().pressUnasked(widget_->control().form.btnWczytaj);
      };
    });
  };
  page.onLaunchFile = [this, later] { later([this] { chooseLaunchFile(); }); };
  page.onGoOn = [this, later](const journal::UnfinishedWork& work) {
    later([this, work] {
      if (goOnWith(work)) fromStartPage_ = true;
    });
  };
  page.onAgain = [this, later] { later([this] { makeSession(); }); };
  const auto work = workLeftBehind();
  // What has just failed would fail again.
  if (!replayHasFailed_ || (work && !work->tried)) page.offer(work);
  showPart(startPage_);
  setWindowTitle(fromText(page.caption()));
  page.show(why, namesSession(options_));
}

void MainWindow::startAgain() {
  if (widget_ == nullptr || !mayBeginAnother()) return;
  if (fromStartPage_) options_ = launch_;
  fromStartPage_ = false;
  begin();
}

bool MainWindow::mayBeginAnother() {
  if (isWorking()) return false;
  return widget_ == nullptr || widget_->watch().mayTake(WayOut::startAgain);
}

void MainWindow::beginOffLine(const Partner& partner) {
  options_ = withSession(launch_, offLineSession(partner));
  fromStartPage_ = true;
  makeSession();
}

void MainWindow::beginByLaunchFile(const QString& path) {
  try {
    const GivenSession named = readLaunchFile(toText(path));
    if (!mayBeginAnother()) return;
    options_ = withSession(launch_, named);
    fromStartPage_ = false;
    makeSession();
  } catch (const BadLaunchFile& error) {
    ask(launchFileRefusal(toText(QFileInfo(path).fileName()), error.what()));
  }
}

void MainWindow::chooseLaunchFile() {
  const QString path = QFileDialog::getOpenFileName(this, fromText(words::launchFileTitle),
                                                    QString(), fromText(words::launchFileKind));
  if (!path.isEmpty()) beginByLaunchFile(path);
}

bool MainWindow::showsLaunched() const {
  return options_.properties == launch_.properties && options_.pageUrl == launch_.pageUrl &&
         options_.cookie == launch_.cookie;
}

void MainWindow::openFile(const QString& path) {
  const QString whole = QFileInfo(path).absoluteFilePath();
  if (isDocument(whole)) {
    openDocument(posix::classicPath(toText(whole)));
  } else {
    beginByLaunchFile(whole);
  }
}

void MainWindow::openDocument(const std::string& path) {
  if (isWorking()) return;
  if (widget_ != nullptr) {
    if (widget_->watch().mayTake(WayOut::open)) widget_->openDocument(path);
    return;
  }
  const FoundPartner found = startPage_->page().partnerOf(path);
  if (found.partner == nullptr) return startPage_->page().show(found.why, namesSession(options_));
  beginOffLine(*found.partner);
  afterStart_ = [this, path] { widget_->openDocument(path); };
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!droppedFile(*event).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString path = droppedFile(*event);
  event->acceptProposedAction();
  // Where the file comes from waits until the event is over.
  QTimer::singleShot(0, this, [this, path] { openFile(path); });
}

bool MainWindow::mayStart() {
  SessionStart start(widget_->control().form, options_, *settings_, splitAddress);
  for (;;) {
    const StartStep step = start.next();
    switch (step.kind) {
      case StartStep::Kind::ask:
        start.answer(widget_->ask(step.box));
        break;
      case StartStep::Kind::chooseFolder:
        widget_->askOffLineFolder();
        break;
      case StartStep::Kind::start:
        return true;
      case StartStep::Kind::refuse:
        whyNot_ = step.refusal;
        return false;
    }
  }
}

}  // namespace awizo::desktop
