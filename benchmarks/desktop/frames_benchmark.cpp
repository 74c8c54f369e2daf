// What happens between a user's action and the next frame, each measured from the event to the
// painted picture, in the processor's time: a key typed in the list of all products, a scroll
// through all lines.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>

#include "benchmarks/support/compare.h"
#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/faces/table_face.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/table.h"
#include "tables/columns/columns.h"
#include "tests/support/scripted_screen.h"

namespace awizo::benchmarks {
namespace {

constexpr int mostProducts = 32767;
constexpr int mostLines = 1423;

/// A form in a window, shown and painted, with the most products and lines or a part of them.
struct ShownForm {
  test::ScriptedScreen face;
  Screen screen{face};
  Form form{screen, "Main"};
  DropDownList names{form, "names"};
  Table lines{form, "lines", lineColumnCount};
  QWidget window;
  desktop::FormFace* faces = nullptr;
  int lineCount = 0;

  explicit ShownForm(std::int64_t part) {
    const int products = mostProducts / static_cast<int>(part);
    lineCount = mostLines / static_cast<int>(part);
    std::vector<std::string> rows;
    for (int i = 0; i < products; ++i) {
      rows.push_back("Молоко пастеризованное отборное, упаковка № " + std::to_string(i));
    }
    names.setRows(std::move(rows));
    lines.setRows(lineCount + 1);
    for (int row = 1; row <= lineCount; ++row) {
      for (int column = 0; column < lineColumnCount; ++column)
        lines.setCell(row, column, std::to_string(row));
    }
    faces = new desktop::FormFace(form, window);
    auto* layout = new QVBoxLayout(&window);
    for (const Control* control : form.controls()) layout->addWidget(faces->widget(*control));
    faces->showAll();
    window.resize(1024, 700);
    window.show();
    window.activateWindow();
    form.showMain();
    paint();
  }
  ~ShownForm() { delete faces; }

  static void paint() { QCoreApplication::processEvents(); }
};

/// What a frame may take, in seconds.
constexpr double frame = 16e-3;

/// Lets a user act again and again, and the window be painted after each time. The ratio is that of
/// the worst frame to what a frame may take. `prepare` runs before each turn, untimed.
template <class Prepare, class Act>
void frames(benchmark::State& state, Prepare&& prepare, Act&& act) {
  double worst = 0;
  for ([[maybe_unused]] const auto turn : state) {
    prepare();
    ShownForm::paint();
    const double seconds = secondsOf([&] {
      act();
      ShownForm::paint();
    });
    worst = std::max(worst, seconds);
    state.SetIterationTime(seconds);
  }
  state.counters["ratio"] = worst / frame;
}

void nothing() {}

void TypingAKeyInTheListOfAllProducts(benchmark::State& state) {
  ShownForm shown(state.range(0));
  auto* box = qobject_cast<QComboBox*>(shown.faces->widget(shown.names));
  QTest::mouseClick(box->lineEdit(), Qt::LeftButton);
  // Each key leaves fewer rows; the last fits none, for which every row is searched to its end.
  const QString keys = QStringLiteral("молоко 3276щ");
  qsizetype next = 0;
  const auto emptyWhenTyped = [&] {
    if (next != 0) return;
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
  };
  frames(state, emptyWhenTyped, [&] {
    const QString key = keys.mid(next, 1);
    next = (next + 1) % keys.size();
    QTest::sendKeyEvent(QTest::Click, box, static_cast<Qt::Key>(key.toUpper()[0].unicode()), key,
                        Qt::NoModifier);
  });
}
BENCHMARK(TypingAKeyInTheListOfAllProducts)
    ->Arg(8)
    ->Arg(4)
    ->Arg(2)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void OpeningTheListOfAllProducts(benchmark::State& state) {
  ShownForm shown(state.range(0));
  auto* box = qobject_cast<QComboBox*>(shown.faces->widget(shown.names));
  frames(
      state, [&] { box->hidePopup(); }, [&] { box->showPopup(); });
}
BENCHMARK(OpeningTheListOfAllProducts)
    ->Arg(8)
    ->Arg(4)
    ->Arg(2)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void EnteringTheListOfAllProducts(benchmark::State& state) {
  ShownForm shown(state.range(0));
  auto* box = qobject_cast<QComboBox*>(shown.faces->widget(shown.names));
  const auto changeTheList = [&] {
    shown.lines.setFocus();
    shown.names.addRow("Ещё один");
  };
  frames(state, changeTheList, [&] { QTest::mouseClick(box->lineEdit(), Qt::LeftButton); });
}
BENCHMARK(EnteringTheListOfAllProducts)
    ->Arg(8)
    ->Arg(4)
    ->Arg(2)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void ScrollingThroughAllLines(benchmark::State& state) {
  ShownForm shown(state.range(0));
  auto& table = static_cast<desktop::TableFace&>(shown.faces->face(shown.lines));
  int row = 0;
  frames(state, nothing, [&] {
    row = (row + 7) % (shown.lineCount - 50);
    table.view()->verticalScrollBar()->setValue(row);
  });
}
BENCHMARK(ScrollingThroughAllLines)
    ->Arg(8)
    ->Arg(4)
    ->Arg(2)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void ShowingAllLinesAnew(benchmark::State& state) {
  ShownForm shown(state.range(0));
  frames(state, nothing, [&] { shown.lines.addItem("ещё"); });
}
BENCHMARK(ShowingAllLinesAnew)
    ->Arg(8)
    ->Arg(4)
    ->Arg(2)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace awizo::benchmarks

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // What the platform can't do without a screen isn't worth a line each time.
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  QApplication application(count, arguments);
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
