// The road of a document by the keyboard, from a list of acts that the page's test does too; what
// is saved and what is posted stands beside the list, byte for byte.

#include <QTimer>
#include <array>
#include <filesystem>
#include <map>

#include "adapters/posix/settings_stores.h"
#include "desk/file_places.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/text.h"
#include "support/files/files.h"

namespace awizo::test {
namespace {

using desktop::fromText;
using Json = nlohmann::ordered_json;
using testing::ElementsAre;

class ListedRoadTest : public ProgramTest {
 protected:
  /// Does all acts, each when the window, a dialog or a box waits for it.
  void follow(const Json& acts) {
    acts_ = &acts;
    doNext();
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return done_ == acts_->size() && within_.empty(); }, 60'000))
        << "act " << done_ << " waits";
  }

  /// Files are saved among the documents of this machine.
  void saveThere() const {
    SettingsFile settings(place.settings().string());
    keepUsedFile(settings, (place.documents() / "before.xml").string());
  }

  std::vector<std::string> saved() const {
    std::vector<std::string> documents;
    for (const auto& entry : std::filesystem::directory_iterator(place.documents())) {
      documents.push_back(readFile(entry.path()));
    }
    return documents;
  }

 private:
  void doNext() {
    QTimer::singleShot(1, &turns_, [this] {
      if (done_ == acts_->size()) return;
      if (!isWaitedFor()) return doNext();
      const Json& act = (*acts_)[done_++];
      within_.push_back(QApplication::activeModalWidget());
      doNext();
      perform(act);
      within_.pop_back();
    });
  }

  /// Whether the user may act: not during an act, unless that has opened something.
  bool isWaitedFor() {
    QWidget* modal = QApplication::activeModalWidget();
    if (!within_.empty() && within_.back() == modal) return false;
    return modal == nullptr ? !widget().isWorking() : QApplication::activeWindow() == modal;
  }

  void perform(const Json& act) {
    SCOPED_TRACE(act.dump());
    if (act.contains("type")) return type(fromText(std::string(act["type"])));
    if (act.contains("tabTo")) return tabTo(controlNamed(act["tabTo"]));
    std::string key = act["press"];
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    if (constexpr std::string_view control = "Control+"; key.starts_with(control)) {
      key = key.substr(control.size());
      modifiers = Qt::ControlModifier;
    }
    for (int times = act.value("times", 1); times > 0; --times) press(keyNamed(key), modifiers);
  }

  static Qt::Key keyNamed(const std::string& name) {
    static const std::map<std::string, Qt::Key, std::less<>> keys{{"ArrowUp", Qt::Key_Up},
                                                                  {"ArrowDown", Qt::Key_Down},
                                                                  {"Insert", Qt::Key_Insert},
                                                                  {"Enter", Qt::Key_Return},
                                                                  {"Space", Qt::Key_Space},
                                                                  {"F2", Qt::Key_F2},
                                                                  {"F9", Qt::Key_F9},
                                                                  {"a", Qt::Key_A},
                                                                  {"s", Qt::Key_S}};
    return keys.at(name);
  }

  const Control& controlNamed(const std::string& name) {
    const std::array<Form*, 5> forms{&form(), &control().dlgDodaj, &control().dlgdodajPule,
                                     &control().dlgSzczegoly, &control().dlgWczytajZapisz};
    const std::size_t dot = name.find('.');
    const Form* form = forms[0];
    for (const Form* one : forms) {
      if (dot != name.npos && one->name() == name.substr(0, dot)) form = one;
    }
    for (const Control* one : form->controls()) {
      if (one->name() == name.substr(dot + 1)) return *one;
    }
    throw std::out_of_range(name);
  }

  const Json* acts_ = nullptr;
  std::size_t done_ = 0;
  QObject turns_;                 ///< what is due goes with it
  std::vector<QWidget*> within_;  ///< what was open when each act that still lasts began
};

TEST_F(ListedRoadTest, EndsInTheDocumentsThatThePageEndsIn) {
  const DemoService service(place.posted());
  agreeTo(service);
  saveThere();
  open(onLineOptions(service));
  follow(Json::parse(projectFile("tests/roads/first_order.json")));
  const std::string wanted = projectFile("tests/roads/first_order.xml");
  EXPECT_THAT(service.posted(), ElementsAre(wanted));
  EXPECT_THAT(saved(), ElementsAre(wanted));
}

}  // namespace
}  // namespace awizo::test
