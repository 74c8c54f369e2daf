// The documents that come from the service or from files.

#include "fuzz/fuzzed_control.h"
#include "fuzz/targets.h"

namespace awizo::fuzz {

namespace {

std::string_view sampleBody(const std::string& name) {
  return withoutDeclaration(FuzzedControl::sample(name));
}

/// Chooses some rows of a list, the first and the last among them.
void chooseRows(DropDownList& list) {
  if (!list.takesInput()) return;
  for (const int row : {0, list.count() / 2, list.count() - 1}) {
    if (row >= 0 && row < list.count()) list.userChoose(row);
  }
}

}  // namespace

void order(std::string_view bytes) {
  FuzzedControl desk;
  desk.startOnLine({sampleBody("catalogue.xml"), "", withoutDeclaration(bytes)});
  require(desk.form.enabled(), "an order leaves the control enabled");
  desk.written();
}

void catalogue(std::string_view bytes) {
  FuzzedControl desk;
  desk.startOnLine({withoutDeclaration(bytes), "", sampleBody("order.xml")});
  DlgDodaj& dialog = desk.control.dlgDodaj;
  desk.face.onModal([&](Form& form) {
    for (DropDownList* list :
         {&dialog.cboxEANProd, &dialog.cboxNazwaProd, &dialog.cboxKodAPP, &dialog.cboxKodSprzed}) {
      chooseRows(*list);
    }
    desk.face.actUnscripted(form);
  });
  desk.form.btnDodaj.userClick();
  desk.written();
}

void places(std::string_view bytes) {
  FuzzedControl desk;
  desk.startOnLine({"", withoutDeclaration(bytes), sampleBody("order.xml")});
  DlgSzczegoly& dialog = desk.control.dlgSzczegoly;
  desk.face.onModal([&](Form& form) {
    chooseRows(dialog.cboxILNLokalizacji);
    chooseRows(dialog.cboxLokalizacja);
    desk.face.actUnscripted(form);
  });
  desk.form.btnDodajOpak.userClick();
  desk.written();
}

void identity(std::string_view bytes) {
  const std::string text(bytes);
  for (const std::string_view file :
       {std::string_view("c:\\VIRD\\userinfo.xml"), test::TestControl::partnerFile}) {
    FuzzedControl desk;
    desk.files.put(file, text);
    desk.startOffLine();
    desk.written();
  }
  FuzzedControl desk;
  desk.preparePage();
  desk.http.reply(text);
  desk.start();
}

void despatchAdvice(std::string_view bytes) {
  FuzzedControl desk;
  desk.startOffLine();
  desk.files.put("c:\\docs\\document.xml", bytes);
  desk.readFile("document.xml");
  require(desk.form.enabled(), "reading leaves the control enabled");
  const std::string written = desk.written();
  if (written.empty()) return;
  desk.files.put("c:\\docs\\document.xml", written);
  desk.readFile("document.xml");
  desk.written();
}

}  // namespace awizo::fuzz
