#include <cstdlib>

#include "benchmarks/support/compare.h"
#include "benchmarks/support/full_document.h"
#include "formats/despatch_advice_writer.h"
#include "tests/support/control/desk.h"

namespace awizo::benchmarks {
namespace {

/// A user who opens a file, from the click on the picture to the last box.
void ReadingADespatchAdvice(benchmark::State& state) {
  const int part = static_cast<int>(state.range(0));
  test::Desk desk;
  desk.form.txtNrAwiza.setText("WZ-1");
  desk.form.txtNrZam.setText("ORD-1");
  fillDocument(desk.editor, mostOrderLines / part, mostPackages / part);
  const std::string text = MakeDesAdv(desk.editor)->fileBytes();
  desk.files.put("c:\\VIRD\\docs\\a.xml", text);
  const auto chooseTheFile = [&] {
    desk.control.dlgWczytajZapisz.DirList.userOpen("c:\\VIRD\\docs");
    desk.control.dlgWczytajZapisz.FileList.userChoose(0);
    desk.control.dlgWczytajZapisz.ImageWczytaj.userClick();
  };
  compare(
      state,
      [&] {
        desk.takeBoxes();
        desk.face.onModal(chooseTheFile);
      },
      [&] { desk.form.btnWczytaj.userClick(); }, [&] { parseBare(text); });
  if (desk.session.LineCount != mostOrderLines / part) std::abort();
  if (desk.packages.rows() != mostPackages / part + 2) std::abort();
}
BENCHMARK(ReadingADespatchAdvice)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();

}  // namespace
}  // namespace awizo::benchmarks
