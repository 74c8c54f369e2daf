#include "hosts/desktop/program/main_window.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>

#include "hosts/desktop/faces/pictures.h"
#include "hosts/desktop/program/addresses.h"
#include "hosts/desktop/program/guide.h"
#include "hosts/desktop/window/commands.h"
#include "session/awizo_wysylki.h"
#include "session/record/off_line_path.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view title = "VIRD";
const QSize usualSize(1024, 700);

}  // namespace

MainWindow::MainWindow(Options options, Http* http)
    : options_(std::move(options)),
      http_(http),
      page_(options_),
      settings_(makeSettings(options_)),
      clock_(makeClock(options_)) {
  setWindowTitle("Подтверждение отгрузки");
  makeSession();
  // On a smaller screen the form scrolls instead of losing its edges.
  resize(usualSize.expandedTo(sizeHint()).boundedTo(screen()->availableSize()));
}

MainWindow::~MainWindow() { delete takeCentralWidget(); }

void MainWindow::makeSession() {
  bag_ = std::make_unique<OptionsBag>(options_);
  widget_ =
      new AwizoWysylkiWidget({*bag_, page_, *settings_, options_.locale, clock_.get(), http_});
  widget_->mayStart = [this] { return mayStart(); };
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(widget_);
  setCentralWidget(area);
  makeMenus();
}

void MainWindow::startAgain() {
  if (widget_->isWorking() || !mayLoseDocument()) return;
  delete takeCentralWidget();
  makeSession();
}

void MainWindow::chooseFolder() {
  if (!widget_->isWorking()) widget_->askOffLineFolder();
}

void MainWindow::makeMenus() {
  menuBar()->clear();
  makeDocumentMenu();
  makeEditMenu();
  makeHelpMenu();
}

void MainWindow::makeDocumentMenu() {
  Commands& commands = widget_->commands();
  QMenu* menu = menuBar()->addMenu("&Документ");
  menu->addActions({commands.open, commands.save, commands.send});
  menu->addSeparator();
  // What rebuilds the menu waits until the menu has closed.
  menu->addAction(pictureNamed("folder"), "&Папка для работы без связи…", this,
                  &MainWindow::chooseFolder, Qt::QueuedConnection);
  menu->addAction(pictureNamed("again"), "&Начать сеанс заново", this, &MainWindow::startAgain,
                  Qt::QueuedConnection);
  menu->addSeparator();
  QAction* quit = menu->addAction("&Выход", this, &MainWindow::close, Qt::QueuedConnection);
  quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void MainWindow::makeEditMenu() {
  Commands& commands = widget_->commands();
  QMenu* menu = menuBar()->addMenu("&Правка");
  menu->addActions({commands.addLine, commands.editLine, commands.removeLine});
  menu->addSeparator();
  menu->addActions({commands.addPackage, commands.editPackage, commands.removePackage});
}

void MainWindow::makeHelpMenu() {
  QMenu* menu = menuBar()->addMenu("&Справка");
  QAction* guide = menu->addAction("&Руководство пользователя", this, &MainWindow::showGuide);
  guide->setShortcut(QKeySequence(Qt::Key_F1));
  menu->addAction("&О программе", this, &MainWindow::showAbout);
}

bool MainWindow::mayStart() { return agreesToAddresses() && hasFolder(); }

bool MainWindow::hasFolder() {
  if (!keptOffLinePath(*settings_).empty()) return true;
  widget_->ask(
      {"Для работы нужна папка с файлами вашей фирмы.\r\n\r\n"
       "Выберите, где она лежит или где её создать: редактор работает в папке VIRD внутри "
       "выбранной. В ней должен быть файл userinfo.xml, который выдал ваш партнёр.",
       std::string(title), BoxIcon::information, BoxButtons::ok});
  return widget_->askOffLineFolder();
}

bool MainWindow::agreesToAddresses() {
  const bool offLine = widget_->control().OnLine() == "Off";
  // Without a page's cookie the control works as off line and sends nothing.
  if (offLine || !options_.cookie) return true;
  const std::string url = options_.pageUrl.value_or("");
  AgreedAddresses agreed(*settings_);
  for (const std::string& origin : serviceOrigins(url, widget_->control().form.PartnerURL)) {
    if (agreed.holds(origin)) continue;
    const Answer answer =
        widget_->ask({"Редактор будет обмениваться документами со службой по адресу:\r\n\r\n" +
                          origin + "\r\n\r\nЭтот адрес встречается впервые. Вы ему доверяете?",
                      std::string(title), BoxIcon::question, BoxButtons::yesNo});
    if (answer != Answer::yes) return false;
    agreed.add(origin);
  }
  return true;
}

bool MainWindow::mayLoseDocument() {
  if (!widget_->isDocumentChanged()) return true;
  return widget_->ask({"Документ не отправлен и не сохранён после изменений.\r\n"
                       "Закрыть его без сохранения?",
                       std::string(title), BoxIcon::question, BoxButtons::yesNo}) == Answer::yes;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!mayClose_) {
    // A second close while the question stands leaves it to the question.
    if (asking_) return event->ignore();
    asking_ = true;
    mayClose_ = mayLoseDocument();
    asking_ = false;
  }
  if (!mayClose_) return event->ignore();
  if (!widget_->isWorking()) return event->accept();
  // What goes on comes to its end first; each step of it runs in a call of its own.
  event->ignore();
  widget_->endWork();
  QTimer::singleShot(0, this, &MainWindow::close);
}

void MainWindow::showGuide() { openGuide(*this); }

void MainWindow::showAbout() {
  const std::string version = widget_->control().form.lblVersion.caption();
  widget_->ask({version + "\r\n\r\nРедактор подтверждений отгрузки (EDIFACT DESADV в виде XML).",
                "О программе", BoxIcon::information, BoxButtons::ok});
}

}  // namespace awizo::desktop
