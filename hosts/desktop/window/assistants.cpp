#include "hosts/desktop/window/assistants.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>

#include "assistants/package_adding.h"
#include "desk/layout_words.h"
#include "hosts/desktop/faces/text.h"
#include "platform/at_exit.h"

namespace awizo::desktop {
namespace {

constexpr int millisecondsBetweenWords = 100;

/// Over the window while an assistant works; closing it stops the work.
class StopBox : public QMessageBox {
 public:
  explicit StopBox(QWidget& window) : QMessageBox(&window) {
    setWindowTitle(fromText(words::boxTitle));
    setStandardButtons(NoButton);
    setEscapeButton(addButton(fromText(words::stop), RejectRole));
  }
};

}  // namespace

Assistants::Assistants(const Assistance& with, HostScreenFace& face, Waiting& waiting,
                       QWidget& window)
    : with_(with),
      face_(face),
      waiting_(waiting),
      window_(window),
      packagesDialog_(with.control.editor, with.numbers),
      distributionDialog_(with.control.editor) {}

bool Assistants::mayAct() const { return !waiting_.lasts() && with_.control.form.takesInput(); }

void Assistants::addPackages() {
  if (!mayAct()) return;
  const std::optional<PackagePlan> plan = packagesDialog_.ask();
  if (!plan) return;
  tell(addingWords(run(fromText(words::packagesAdded),
                       [&](const GoOn& goOn) { return awizo::addPackages(with_, *plan, goOn); })));
}

void Assistants::distribute() {
  if (!mayAct()) return;
  const std::optional<DistributionOrder> order = distributionDialog_.ask();
  if (order) distribute(*order);
}

void Assistants::packRest(const std::vector<int>& lines, int package) {
  if (!mayAct()) return;
  DistributionOrder order{{.lines = lines, .packages = {package}, .spread = Spread::allHere}, {}};
  order.plans = plansOf(with_.control.editor, order.choice);
  if (order.plans.empty()) return tell(std::string(nothingToPack));
  distribute(order);
}

void Assistants::distribute(const DistributionOrder& order) {
  tell(distributionWords(run(fromText(words::linesPacked), [&](const GoOn& goOn) {
    return awizo::distribute(with_, order.choice, order.plans, goOn);
  })));
}

AssistantReport Assistants::run(const QString& words,
                                const std::function<AssistantReport(const GoOn& goOn)>& work) {
  bool isStopped = false;
  StopBox box(window_);
  QObject::connect(&box, &QDialog::finished, [&] { isStopped = true; });
  waiting_.begin();
  const AtExit over([this] { waiting_.end(); });
  waiting_.letAnswer(&box);
  QElapsedTimer sinceWords;
  sinceWords.start();
  return work([&](int done, int all) {
    // What is over at once needs no words.
    if (sinceWords.elapsed() >= millisecondsBetweenWords) {
      sinceWords.restart();
      box.setText(words.arg(done).arg(all));
      if (!box.isVisible()) box.show();
      waiting_.goOn();
    }
    return !isStopped && !face_.ending();
  });
}

void Assistants::tell(const std::string& words) {
  if (words.empty() || face_.ending()) return;
  with_.control.screen.messageBox({.text = words,
                                   .title = std::string(words::boxTitle),
                                   .icon = BoxIcon::exclamation,
                                   .buttons = BoxButtons::ok});
}

}  // namespace awizo::desktop
